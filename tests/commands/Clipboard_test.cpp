#include <gtest/gtest.h>

#include "commands/ClipboardCommands.h"
#include "tests/support/EditorTest.h"
#include "tests/support/Recorders.h"

namespace kestrel::commands {
namespace {

using gdi::COLORREF;
constexpr COLORREF kOpaque = 0xFF000000;

// Sizes by hand; that of 33 x 64 by another program that rounds every step to 32 bits.
TEST(PasteFit, LargePicturesAreShrunkToTheNearestPixelsAboveLeft) {
    const struct {
        gdi::Size picture;
        imaging::PasteFit fit{};
        gdi::Size size;
        // Target pixel, and the source pixel in its place.
        test::At target, source;
    } cases[] = {
        {{64, 32}, imaging::PasteFit::Shrink, {32, 32}, {5, 31}, {10, 31}},
        {{33, 10}, imaging::PasteFit::KeepAspect, {32, 10}, {31, 9}, {31, 9}},
        {{1, 4000}, imaging::PasteFit::KeepAspect, {1, 32}, {0, 31}, {0, 3875}},
        {{20000, 32}, imaging::PasteFit::KeepAspect, {32, 1}, {31, 0}, {19375, 0}},
        {{100, 99}, imaging::PasteFit::KeepAspect, {32, 32}, {9, 11}, {28, 34}},
        {{33, 64}, imaging::PasteFit::KeepAspect, {17, 32}, {16, 31}, {31, 62}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.picture.width << " x " << c.picture.height);
        EXPECT_FALSE(imaging::FitsIcon(c.picture));
        ASSERT_EQ(imaging::FittedSize(c.picture, c.fit), c.size);
        // Each pixel bears its own number.
        gdi::Surface picture(c.picture.width, c.picture.height);
        COLORREF number = kOpaque;
        for (int y = 0; y < picture.Height(); ++y) {
            for (COLORREF& pixel : picture.Row(y))
                pixel = number++;
        }
        const gdi::IconPlanes planes =
            imaging::PlanesOf(picture, c.size, imaging::PasteMode::Transparent);
        EXPECT_EQ(planes.image.GetPixel(c.target.x, c.target.y),
                  static_cast<COLORREF>(c.source.y * c.picture.width + c.source.x));
    }
    EXPECT_TRUE(imaging::FitsIcon({32, 32}));
}

TEST(PasteFit, WhiteAndHalfTransparentPixelsAreSeeThroughUnlessOpaque) {
    const struct {
        COLORREF pixel, image, opaqueImage;
        bool transparent;
    } cases[] = {
        {0xFF0000FF, 0x0000FF, 0x0000FF, false}, {0xFFFFFFFF, 0x000000, 0xFFFFFF, true},
        {0xFFFEFFFF, 0xFEFFFF, 0xFEFFFF, false}, {0x00000000, 0x000000, 0xFFFFFF, true},
        {0x80000000, 0x000000, 0x7F7F7F, false}, {0x7F0000FF, 0x000000, 0x8080FF, true},
        {0x80FFFFFF, 0x000000, 0xFFFFFF, true},  {0x010000C8, 0x000000, 0xFEFEFF, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << std::hex << c.pixel);
        gdi::Surface picture(1, 1);
        picture.Row(0)[0] = c.pixel;
        const gdi::IconPlanes planes =
            imaging::PlanesOf(picture, {1, 1}, imaging::PasteMode::Transparent);
        EXPECT_EQ(planes.mask.GetPixel(0, 0), c.transparent ? gdi::kWhite : gdi::kBlack);
        EXPECT_EQ(planes.image.GetPixel(0, 0), c.image);
        const gdi::IconPlanes opaque =
            imaging::PlanesOf(picture, {1, 1}, imaging::PasteMode::Opaque);
        EXPECT_EQ(opaque.mask.GetPixel(0, 0), gdi::kBlack);
        EXPECT_EQ(opaque.image.GetPixel(0, 0), c.opaqueImage);
    }
}

using ClipboardTest = test::EditorTest;

TEST_F(ClipboardTest, CutAndPasteMoveToTheTopLeftCorner) {
    test::AnsweredDialogs dialogs;
    test::MemoryClipboard clipboard;
    ClipboardCommands commands(editor_, clipboard, dialogs);
    // A red, a white and a transparent pixel; below them two of the last kind and one that inverts
    // the screen.
    Paint({10, 10}, 0x0000FF);
    Paint({11, 10}, gdi::kWhite);
    icon_.ChangePlanes().image.SetPixel(12, 11, 0x123456);
    editor_.History().PushUndoSnapshot();
    editor_.Tools().SelectTool(editing::ToolId::Selection);
    Stroke(editing::Button::Left, {{100, 100}, {130, 120}});
    commands.Cut();
    EXPECT_EQ(OpaquePixels(), 0);
    EXPECT_EQ(editor_.History().UndoCount(), 3U);
    EXPECT_EQ(clipboard.image->Row(1)[2], 0xEDCBA9U) << "inverted white";
    editor_.Tools().SelectTool(editing::ToolId::Pencil);
    for (const imaging::PasteMode mode :
         {imaging::PasteMode::Transparent, imaging::PasteMode::Opaque}) {
        icon_.Modified = false;
        ASSERT_TRUE(commands.Paste(mode));
        EXPECT_EQ(editor_.Tools().CurrentTool(), editing::ToolId::Selection);
        EXPECT_EQ(editor_.Selected().Marquee(), (editing::Corners{0, 0, 30, 20}));
        EXPECT_TRUE(icon_.Modified);
    }
    EXPECT_EQ(editor_.History().UndoCount(), 4U) << "the first was put down";
    EXPECT_EQ(OpaquePixels(), 1) << "the white pixel had become transparent";
    editor_.Selected().DropSelection();
    EXPECT_EQ(OpaquePixels(), 6);
    EXPECT_EQ(icon_.PicImage().GetPixel(0, 0), 0x0000FFU);
}

}  // namespace
}  // namespace kestrel::commands
