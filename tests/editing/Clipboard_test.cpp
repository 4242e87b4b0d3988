#include <gtest/gtest.h>

#include "editing/ClipboardCommands.h"
#include "tests/support/EditorTest.h"
#include "tests/support/Recorders.h"

namespace kestrel::editing {
namespace {

constexpr gdi::COLORREF kOpaque = 0xFF000000;

// Sizes computed with another program that rounds every step to 32 bits; 64 x 32, 33 x 10 and
// 1 x 4000 by hand, too.
TEST(PasteFit, LargePicturesAreShrunk) {
    const struct {
        PictureSize picture, inProportion;
    } cases[] = {
        {{64, 32}, {32, 16}},   {{33, 10}, {32, 10}},  {{1, 4000}, {1, 32}},
        {{4000, 1}, {32, 1}},   {{100, 99}, {32, 32}}, {{33, 64}, {17, 32}},
        {{65, 3}, {32, 1}},     {{32, 33}, {31, 32}},  {{64, 63}, {32, 31}},
        {{177, 47}, {32, 8}},   {{33, 33}, {32, 32}},  {{7680, 4320}, {32, 19}},
        {{32, 20000}, {1, 32}},
    };
    for (const auto& c : cases) {
        EXPECT_FALSE(FitsIcon(c.picture));
        EXPECT_EQ(FittedSize(c.picture, PasteFit::KeepAspect), c.inProportion)
            << c.picture.width << " x " << c.picture.height;
        EXPECT_EQ(FittedSize(c.picture, PasteFit::Shrink), (PictureSize{32, 32}));
    }
    EXPECT_TRUE(FitsIcon({32, 32}));
}

// Each pixel bears its own column in red, its row in green and blue.
TEST(PasteFit, ShrinkingTakesTheNearestPixelAboveLeft) {
    const struct {
        PictureSize picture, size;
        // Target pixel, and the source pixel in its place.
        test::At target, source;
    } cases[] = {
        {{64, 32}, {32, 16}, {31, 15}, {62, 30}}, {{64, 32}, {32, 32}, {5, 31}, {10, 31}},
        {{33, 10}, {32, 10}, {31, 9}, {31, 9}},   {{33, 10}, {32, 32}, {16, 31}, {16, 9}},
        {{33, 10}, {32, 32}, {31, 3}, {31, 0}},   {{33, 10}, {32, 32}, {0, 4}, {0, 1}},
        {{1, 4000}, {1, 32}, {0, 31}, {0, 3875}}, {{100, 99}, {32, 32}, {31, 31}, {96, 95}},
        {{100, 99}, {32, 32}, {9, 11}, {28, 34}},
    };
    for (const auto& c : cases) {
        gdi::Surface picture(c.picture.width, c.picture.height);
        for (int y = 0; y < picture.Height(); ++y) {
            for (int x = 0; x < picture.Width(); ++x)
                picture.Row(y)[static_cast<std::size_t>(x)] =
                    kOpaque | static_cast<gdi::COLORREF>(x | y << 8);
        }
        const PastedPlanes planes = PlanesOf(picture, c.size, PasteMode::Transparent);
        EXPECT_EQ(planes.image.GetPixel(c.target.x, c.target.y),
                  static_cast<gdi::COLORREF>(c.source.x | c.source.y << 8))
            << c.picture.width << " x " << c.picture.height;
    }
}

TEST(PasteFit, WhiteAndHalfTransparentPixelsAreSeeThroughUnlessOpaque) {
    const struct {
        gdi::COLORREF pixel, image, opaqueImage;
        bool transparent;
    } cases[] = {
        {0xFF0000FF, 0x0000FF, 0x0000FF, false}, {0xFFFFFFFF, 0x000000, 0xFFFFFF, true},
        {0xFFFEFFFF, 0xFEFFFF, 0xFEFFFF, false}, {0x00000000, 0x000000, 0xFFFFFF, true},
        {0x00FFFFFF, 0x000000, 0xFFFFFF, true},  {0x80000000, 0x000000, 0x7F7F7F, false},
        {0x7F0000FF, 0x000000, 0x8080FF, true},  {0x80FFFFFF, 0x000000, 0xFFFFFF, true},
        {0x330A141E, 0x000000, 0xCED0D2, true},  {0x010000C8, 0x000000, 0xFEFEFF, true},
    };
    for (const auto& c : cases) {
        gdi::Surface picture(1, 1);
        picture.Row(0)[0] = c.pixel;
        const PastedPlanes planes = PlanesOf(picture, {1, 1}, PasteMode::Transparent);
        EXPECT_EQ(planes.mask.GetPixel(0, 0) == gdi::kWhite, c.transparent) << std::hex << c.pixel;
        EXPECT_EQ(planes.image.GetPixel(0, 0), c.image) << std::hex << c.pixel;
        const PastedPlanes opaque = PlanesOf(picture, {1, 1}, PasteMode::Opaque);
        EXPECT_EQ(opaque.mask.GetPixel(0, 0), gdi::kBlack);
        EXPECT_EQ(opaque.image.GetPixel(0, 0), c.opaqueImage) << std::hex << c.pixel;
    }
}

class ClipboardTest : public test::EditorTest {
  protected:
    ClipboardTest() {
        Paint({10, 10}, 0x0000FF);
        Paint({11, 10}, gdi::kWhite);
        // It inverts the screen.
        icon_.PicImage.SetPixel(12, 11, 0x123456);
        editor_.History().PushUndoSnapshot();
        editor_.Tools().SelectTool(ToolId::Selection);
        // Red, white, transparent; below them nothing but that one.
        Stroke(Button::Left, {{100, 100}, {130, 120}});
    }
    gdi::COLORREF Copied(int x, int y) {
        return clipboard_.image->Row(y)[static_cast<std::size_t>(x)];
    }

    test::RecordingWindow dialog_;
    test::MemoryClipboard clipboard_;
    ClipboardCommands commands_{editor_, clipboard_, dialog_};
};

TEST_F(ClipboardTest, CopyPutsTheSelectionOverWhiteWithItsAlpha) {
    icon_.Modified = false;
    commands_.Copy();
    ASSERT_EQ(clipboard_.image->Bounds(), (gdi::Rect{0, 0, 3, 2}));
    EXPECT_EQ(Copied(0, 0), 0xFF0000FF);
    EXPECT_EQ(Copied(1, 0), 0xFFFFFFFF);
    EXPECT_EQ(Copied(2, 0), 0x00FFFFFFU);
    EXPECT_EQ(Copied(2, 1), 0x00EDCBA9U);
    EXPECT_TRUE(editor_.Selected().SelectionMarked());
    EXPECT_FALSE(icon_.Modified);
    clipboard_.image.reset();
    editor_.Selected().DropSelection();
    commands_.Copy();
    commands_.Cut();
    EXPECT_FALSE(clipboard_.HasImage()) << "there is nothing to copy";
    EXPECT_EQ(editor_.History().UndoCount(), 2U);
}

TEST_F(ClipboardTest, CutAndPasteMoveToTheTopLeftCorner) {
    commands_.Cut();
    EXPECT_EQ(OpaquePixels(), 0);
    EXPECT_EQ(editor_.History().UndoCount(), 3U);
    editor_.Tools().SelectTool(ToolId::Pencil);
    for (const PasteMode mode : {PasteMode::Transparent, PasteMode::Opaque}) {
        icon_.Modified = false;
        ASSERT_TRUE(commands_.Paste(mode));
        EXPECT_EQ(editor_.Tools().CurrentTool(), ToolId::Selection);
        EXPECT_EQ(editor_.Selected().Marquee(), (Corners{0, 0, 30, 20}));
        EXPECT_TRUE(icon_.Modified);
        EXPECT_TRUE(test::ViewsAreFresh(editor_));
    }
    EXPECT_EQ(editor_.History().UndoCount(), 4U) << "the first was put down";
    EXPECT_EQ(OpaquePixels(), 1) << "the white pixel had become transparent";
    editor_.Selected().DropSelection();
    EXPECT_EQ(OpaquePixels(), 6);
    EXPECT_EQ(icon_.PicImage.GetPixel(0, 0), 0x0000FFU);
    EXPECT_EQ(icon_.PicImage.GetPixel(2, 1), gdi::kWhite);
    EXPECT_EQ(dialog_.asked.size(), 0U);
}

TEST_F(ClipboardTest, ALargePictureIsPastedAsTheUserLikes) {
    clipboard_.image = gdi::Surface(33, 10, gdi::kBlack);
    const auto refused = commands_.Paste(PasteMode::Opaque);
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().number, kDialogCancelled);
    EXPECT_EQ(dialog_.asked, (std::vector<PictureSize>{{33, 10}}));
    EXPECT_TRUE(editor_.Selected().SelectionMarked()) << "nothing has changed";
    dialog_.fit = PasteFit::Shrink;
    EXPECT_TRUE(commands_.Paste(PasteMode::Opaque));
    EXPECT_EQ(editor_.Selected().Marquee(), (Corners{0, 0, 320, 320}));
    dialog_.fit = PasteFit::KeepAspect;
    EXPECT_TRUE(commands_.Paste(PasteMode::Opaque));
    EXPECT_EQ(editor_.Selected().Marquee(), (Corners{0, 0, 320, 100}));
    clipboard_.image.reset();
    const auto failed = commands_.Paste(PasteMode::Opaque);
    ASSERT_FALSE(failed);
    EXPECT_EQ(failed.error().number, kInvalidPicture);
    EXPECT_TRUE(editor_.Selected().SelectionFloating());
}

}  // namespace
}  // namespace kestrel::editing
