#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

/// One row of the table: two ways to do the same work, whose median CPU times are compared.
///
///     static const BenchmarkPair pair{"repaint of 100 buttons", 1.5, repaintOurs, repaintStock};
///
/// Both sides run in one process, their repetitions interleaved at random.
struct BenchmarkPair
{
    using Side = std::function<void(benchmark::State &)>;

    /// \a limit: the highest ratio of \a vellum to \a stock that is accepted.
    BenchmarkPair(const std::string &name, double limit, const Side &vellum, const Side &stock);
};

/// One row of the table: how the CPU time of \a work grows with its size. The exponent is the slope
/// of a line through (log size, log time); the size is state.range(0).
struct BenchmarkGrowth
{
    BenchmarkGrowth(const std::string &name, double maxExponent, const std::vector<int64_t> &sizes,
                    const std::function<void(benchmark::State &)> &work);
};
