#pragma once

#include "vellum_export.h"

namespace vellum {

/// Makes the records of the models known to Qt's meta types by name, so that they can be created
/// from it and queued. Every model calls it; all calls but the first cost nothing.
VELLUM_EXPORT void registerRecordTypes();

} // namespace vellum
