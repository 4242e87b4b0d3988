#pragma once

#include "document/IconDocument.h"

namespace kestrel::app {

// The program's own icon, as an untitled document: its window and tray picture and the sample.
document::IconDocument ApplicationIcon();

}  // namespace kestrel::app
