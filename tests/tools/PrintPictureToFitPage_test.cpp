#include "tools/PrintPictureToFitPage.h"

#include "platform/gdi/PixelArt.h"
#include "tests/support/Recorders.h"

namespace kestrel::tools {
namespace {

using enum services::Orientation;

TEST(PrintPictureToFitPage, FillsThePageAsFarAsProportionsAllow) {
    const struct {
        gdi::Size picture, page;
        services::Orientation orientation;
        double width, height;
    } kPages[] = {{{32, 32}, {2329, 3358}, Portrait, 2329, 2329},
                  {{32, 32}, {3358, 2329}, Portrait, 2329, 2329},
                  {{64, 32}, {3358, 2329}, Landscape, 3358, 1679},
                  {{32, 64}, {2329, 3358}, Portrait, 1679, 3358}};
    for (const auto& row : kPages) {
        const PrintedSize printed = FitToPage(row.picture, row.page);
        EXPECT_NEAR(printed.width, row.width, 1e-6) << row.picture.width;
        EXPECT_NEAR(printed.height, row.height, 1e-6) << row.picture.width;
        EXPECT_EQ(OrientationOf(row.picture), row.orientation);
    }
}

TEST(PrintPictureToFitPage, PaintsEqualPixelsAtOnceAndNoTransparentOnes) {
    test::RecordingPrinter printer;
    printer.page = {10, 14};
    PrintPictureToFitPage(printer,
                          gdi::ReadIconArt(". r r g \n . r r g \n r r r g \n . r r .",
                                           std::vector<gdi::ArtInk>{{'r', 0x10}, {'g', 0x20}}));
    // A pixel has 2.5 dots; halves go to the even dot.
    const std::vector<test::RecordingPrinter::Filled> expected{
        {{2, 0, 6, 5}, 0x10}, {{8, 0, 2, 8}, 0x20}, {{0, 5, 8, 3}, 0x10}, {{2, 8, 6, 2}, 0x10}};
    EXPECT_EQ(printer.filled, expected);
    EXPECT_EQ(printer.orientation, Portrait);
}

}  // namespace
}  // namespace kestrel::tools
