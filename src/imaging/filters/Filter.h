#pragma once

#include "imaging/filters/PixelArray.h"
#include "platform/system/RandomNumbers.h"
#include "services/MessageLoop.h"

namespace kestrel::filters {

// What a filter works on. Both arrays are equal at first; what is written goes to the target.
struct FilterRun {
    const PixelArray& FilterSource;
    PixelArray& FilterTarget;
    int Param;
    services::MessageLoop& loop;
    system::RandomNumbers& random;
};

using Filter = void (*)(const FilterRun& run);

}  // namespace kestrel::filters
