#include "tools/PrintPictureToFitPage.h"

#include <algorithm>
#include <cmath>

namespace kestrel::tools {

namespace {

constexpr double kHiMetricPerInch = 2540;  // units of 0.01 mm

double ToHiMetric(double dots) {
    return dots * kHiMetricPerInch / services::Printer::kDotsPerInch;
}

double ToDots(double hiMetric) {
    return hiMetric * services::Printer::kDotsPerInch / kHiMetricPerInch;
}

// Pixels to the right of this one with the same colour, itself included.
int RunLength(const gdi::IconPlanes& picture, int x, int y) {
    const gdi::COLORREF color = picture.image.GetPixel(x, y);
    int end = x + 1;
    while (end < picture.Width() && !picture.IsTransparent(end, y) &&
           picture.image.GetPixel(end, y) == color) {
        ++end;
    }
    return end - x;
}

// Lengthens the block that ends just above the run and is as wide, or begins a new one.
void AddRun(std::vector<PixelBlock>& blocks, const PixelBlock& run) {
    const auto above = std::ranges::find_if(blocks, [&](const PixelBlock& block) {
        const gdi::Rect& pixels = block.pixels;
        return block.color == run.color && pixels.left == run.pixels.left &&
               pixels.width == run.pixels.width && pixels.top + pixels.height == run.pixels.top;
    });
    if (above == blocks.end()) {
        blocks.push_back(run);
    } else {
        ++above->pixels.height;
    }
}

// The dot at which a pixel begins when so many of them are so long.
int DotOf(int pixel, int pixels, double printed) {
    return static_cast<int>(std::nearbyint(printed * pixel / pixels));
}

}  // namespace

services::Orientation OrientationOf(gdi::Size picture) {
    return picture.height < picture.width ? services::Orientation::Landscape
                                          : services::Orientation::Portrait;
}

PrintedSize FitToPage(gdi::Size picture, gdi::Size page) {
    const double pictureRatio = static_cast<double>(picture.width) / picture.height;
    const PrintedSize printable{ToHiMetric(page.width), ToHiMetric(page.height)};
    const double pageRatio = printable.width / printable.height;
    const PrintedSize printed =
        pictureRatio >= pageRatio ? PrintedSize{printable.width, printable.width / pictureRatio}
                                  : PrintedSize{printable.height * pictureRatio, printable.height};
    return {ToDots(printed.width), ToDots(printed.height)};
}

std::vector<PixelBlock> OpaqueBlocks(const gdi::IconPlanes& picture) {
    std::vector<PixelBlock> blocks;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0, length = 1; x < picture.Width(); x += length) {
            length = 1;
            if (picture.IsTransparent(x, y)) continue;
            length = RunLength(picture, x, y);
            AddRun(blocks, {{x, y, length, 1}, picture.image.GetPixel(x, y)});
        }
    }
    return blocks;
}

void PrintPictureToFitPage(services::Printer& printer, const gdi::IconPlanes& picture) {
    const gdi::Size size{picture.Width(), picture.Height()};
    printer.SetOrientation(OrientationOf(size));
    const PrintedSize printed = FitToPage(size, printer.PrintableArea());
    for (const auto& [pixels, color] : OpaqueBlocks(picture)) {
        const int left = DotOf(pixels.left, size.width, printed.width);
        const int top = DotOf(pixels.top, size.height, printed.height);
        const int right = DotOf(pixels.left + pixels.width, size.width, printed.width);
        const int bottom = DotOf(pixels.top + pixels.height, size.height, printed.height);
        printer.FillRectangle({left, top, right - left, bottom - top}, color);
    }
}

}  // namespace kestrel::tools
