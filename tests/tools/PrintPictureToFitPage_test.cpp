#include "tools/PrintPictureToFitPage.h"

#include "platform/gdi/PixelArt.h"
#include "tests/support/Recorders.h"

namespace kestrel::tools {
namespace {

using gdi::Size;

TEST(PrintPictureToFitPage, FillsThePageAsFarAsProportionsAllow) {
    for (const auto& [picture, page, printed] :
         {std::tuple{Size{32, 32}, Size{2329, 3358}, PrintedSize{2329, 2329}},
          {{32, 32}, {3358, 2329}, {2329, 2329}},
          {{64, 32}, {3358, 2329}, {3358, 1679}},
          {{32, 64}, {2329, 3358}, {1679, 3358}}}) {
        EXPECT_NEAR(FitToPage(picture, page).width, printed.width, 1e-6) << picture.width;
        EXPECT_NEAR(FitToPage(picture, page).height, printed.height, 1e-6) << picture.width;
        EXPECT_EQ(OrientationOf(picture) == services::Orientation::Landscape, picture.width == 64);
    }
}

TEST(PrintPictureToFitPage, PaintsEqualPixelsAtOnceAndNoTransparentOnes) {
    test::RecordingPrinter printer;
    printer.page = {10, 14};
    const std::vector<gdi::ArtInk> inks{{'r', 0x10}, {'g', 0x20}};
    PrintPictureToFitPage(printer,
                          gdi::ReadIconArt(". r r g \n . r r g \n r r r g \n . r r .", inks));
    // A pixel has 2.5 dots; halves go to the even dot.
    EXPECT_EQ(printer.printed, "2,0 6x5 10, 8,0 2x8 20, 0,5 8x3 10, 2,8 6x2 10, ");
}

}  // namespace
}  // namespace kestrel::tools
