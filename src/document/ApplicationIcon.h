#pragma once

#include "platform/gdi/IconPlanes.h"

namespace kestrel::document {

// The program's own icon: its window and tray picture and the sample.
gdi::IconPlanes ApplicationIcon();

}  // namespace kestrel::document
