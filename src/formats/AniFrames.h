#pragma once

#include <vector>

#include "formats/IconTable.h"

namespace kestrel::formats {

// Animated cursors: a RIFF file of type "ACON", as "Multimedia Programming Interface and Data
// Specifications" and the Windows documentation describe it.

bool IsAni(SourceReader& file);
// One icon a step, in the order of the sequence.
IconTable ListAni(SourceReader& file);
std::vector<ImageEntry> StepImages(SourceReader& file, const IconTable& table,
                                   const IconPlace& step);

}  // namespace kestrel::formats
