#pragma once

#include "document/IconDocument.h"

namespace kestrel::document {

// The program's own icon, as an untitled document: its window and tray picture and the sample.
IconDocument ApplicationIcon();

}  // namespace kestrel::document
