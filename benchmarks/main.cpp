#include "benchmarks.h"

#include <QApplication>
#include <QFile>
#include <QFont>

#include <cmath>
#include <cstdio>
#include <map>

namespace {

struct Row
{
    std::string name;
    double limit;
    std::vector<int64_t> sizes; // empty for a pair
};

std::vector<Row> &rows()
{
    static std::vector<Row> list;
    return list;
}

/// Keeps the median CPU time, in nanoseconds, of every benchmark.
class MedianReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.error_occurred) {
                failed = true;
                std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(),
                             run.error_message.c_str());
            }
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median")
                medians[run.run_name.function_name + run.run_name.args] =
                    run.cpu_accumulated_time * 1e9 / double(run.iterations);
        }
    }

    std::map<std::string, double> medians;
    bool failed = false;
};

double exponentOf(const std::vector<int64_t> &sizes, const std::vector<double> &times)
{
    double sx = 0, sy = 0, sxx = 0, sxy = 0;
    const double n = double(sizes.size());
    for (size_t i = 0; i < sizes.size(); ++i) {
        const double x = std::log(double(sizes[i]));
        const double y = std::log(times[i]);
        sx += x;
        sy += y;
        sxx += x * x;
        sxy += x * y;
    }
    return (n * sxy - sx * sy) / (n * sxx - sx * sx);
}

void printRow(const std::string &name, const std::string &figures, double value, double limit,
              bool *met)
{
    const bool good = value <= limit;
    *met = *met && good;
    std::printf("%-58s %-28s %8.2f %8.2f  %s\n", name.c_str(), figures.c_str(), value, limit,
                good ? "met" : "MISSED");
}

std::string milliseconds(double nanoseconds)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.3f", nanoseconds / 1e6);
    return text;
}

bool printTable(const std::map<std::string, double> &medians)
{
    bool met = true;
    std::printf("%-58s %-28s %8s %8s\n", "work (median CPU time, ms)", "Vellum / other side",
                "ratio", "limit");
    for (const Row &row : rows()) {
        std::vector<double> times;
        const std::vector<std::string> sides = {"/vellum", "/stock"};
        const size_t wanted = row.sizes.empty() ? sides.size() : row.sizes.size();
        for (size_t i = 0; i < wanted; ++i) {
            const auto found = medians.find(
                row.name + (row.sizes.empty() ? sides[i] : std::to_string(row.sizes[i])));
            if (found != medians.end())
                times.push_back(found->second);
        }
        if (times.size() != wanted)
            continue; // left out by --benchmark_filter
        const std::string figures =
            milliseconds(times.front()) + " / " + milliseconds(times.back());
        if (row.sizes.empty())
            printRow(row.name, figures, times[0] / times[1], row.limit, &met);
        else
            printRow(row.name + ", exponent", figures, exponentOf(row.sizes, times), row.limit,
                     &met);
    }
    return met;
}

} // namespace

BenchmarkPair::BenchmarkPair(const std::string &name, double limit, const Side &vellum,
                             const Side &stock)
{
    rows().push_back({name, limit, {}});
    benchmark::RegisterBenchmark((name + "/vellum").c_str(), vellum);
    benchmark::RegisterBenchmark((name + "/stock").c_str(), stock);
}

BenchmarkGrowth::BenchmarkGrowth(const std::string &name, double maxExponent,
                                 const std::vector<int64_t> &sizes,
                                 const std::function<void(benchmark::State &)> &work)
{
    rows().push_back({name, maxExponent, sizes});
    auto *family = benchmark::RegisterBenchmark(name.c_str(), work);
    for (int64_t size : sizes)
        family->Arg(size);
}

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QFont font(QStringLiteral("Noto Sans CJK SC"));
    font.setPixelSize(14);
    app.setFont(font);
    QFile sheet(QStringLiteral(":/Resource/vellum.qss"));
    if (sheet.open(QIODevice::ReadOnly))
        app.setStyleSheet(QString::fromUtf8(sheet.readAll()));

    std::vector<char *> arguments(argv, argv + argc);
    std::string repetitions = "--benchmark_repetitions=9";
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    std::string minTime = "--benchmark_min_time=0.05";
    arguments.insert(arguments.begin() + 1,
                     {repetitions.data(), interleaving.data(), minTime.data()});
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;
    MedianReporter reporter;
    const bool any = benchmark::RunSpecifiedBenchmarks(&reporter) > 0;
    return printTable(reporter.medians) && any && !reporter.failed ? 0 : 1;
}
