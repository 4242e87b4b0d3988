#pragma once

#include <vector>

#include "platform/gdi/IconPlanes.h"
#include "services/Printer.h"

namespace kestrel::tools {

// In fractions of a dot.
struct PrintedSize {
    double width = 0;
    double height = 0;
    bool operator==(const PrintedSize&) const = default;
};

// Pixels of one colour.
struct PixelBlock {
    gdi::Rect pixels;
    gdi::COLORREF color = gdi::kBlack;
    bool operator==(const PixelBlock&) const = default;
};

services::Orientation OrientationOf(gdi::Size picture);
// As large as the page allows with the picture's proportions.
PrintedSize FitToPage(gdi::Size picture, gdi::Size page);

// The opaque pixels in as few rectangles as equal neighbours in a row, and equal rows, give.
std::vector<PixelBlock> OpaqueBlocks(const gdi::IconPlanes& picture);

// Paints the picture at the top left corner of the page, each pixel a rectangle of its colour.
// Transparent pixels are left to the paper.
void PrintPictureToFitPage(services::Printer& printer, const gdi::IconPlanes& picture);

}  // namespace kestrel::tools
