#pragma once

#include "core/CoreExport.h"

namespace Tessark::UI {

/// What tests and benchmarks count. Belongs to the thread of the widgets.
struct KitCounters
{
    int imagesMade = 0;     // by the colour wheel, in this process
    int anglesOfImages = 0; // atan2 calls that it took to make them
};

TESSARK_CORE_EXPORT KitCounters &kitCounters();

} // namespace Tessark::UI
