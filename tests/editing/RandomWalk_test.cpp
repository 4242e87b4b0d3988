#include <gtest/gtest.h>

#include <random>

#include "editing/ClipboardCommands.h"
#include "editing/WellCommands.h"
#include "i18n/Language.h"
#include "platform/gdi/Blit.h"
#include "tests/support/EditorTest.h"
#include "tests/support/Recorders.h"

namespace kestrel::editing {
namespace {

// Uses the editor as a user without a plan does.
class RandomWalkTest : public test::EditorTest {
  protected:
    int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    Button AnyButton() { return Below(2) == 0 ? Button::Left : Button::Right; }
    // Mostly on the grid, sometimes beside it, seldom far away.
    test::At AnyPoint() {
        const int reach = Below(20) == 0 ? 32000 : 40;
        return {Below(320 + 2 * reach) - reach, Below(320 + 2 * reach) - reach};
    }

    void Gesture() {
        const Button button = AnyButton();
        test::At at = AnyPoint();
        const gdi::Surface before = editor_.Views().PicMain;
        editor_.PicMain_MouseDown(button, at.x, at.y);
        for (int moves = Below(5); moves > 0; --moves) {
            at = AnyPoint();
            const bool second = Below(8) == 0;
            if (second) editor_.PicMain_MouseDown(Other(button), at.x, at.y);
            editor_.PicMain_MouseMove(second ? HeldButtons{true, true} : test::Held(button), at.x,
                                      at.y);
            if (second) editor_.PicMain_MouseUp(Other(button), at.x, at.y);
        }
        ExpectRepainted(before);
        // A command may take the mouse away.
        if (Below(10) == 0) editor_.EndGesture();
        editor_.PicMain_MouseUp(button, at.x, at.y);
    }

    void Step() {
        const auto id = static_cast<ToolId>(Below(2) == 0 ? 1 : 1 + Below(12));
        cdb_.choice = random_() & gdi::kWhite;
        switch (Below(36)) {
            case 0:
                return wells_.ImgTransparent_MouseUp(AnyButton());
            case 1:
                return wells_.ImgInterchangeColor_MouseUp(AnyButton());
            case 2:
                return wells_.PicForeColor_MouseUp(Button::Left);
            case 3:
                return wells_.ImgDefaultColor_MouseUp(AnyButton());
            case 4:
                return editor_.PopRedoSnapshot();
            case 5:
            case 6:
                return editor_.PopUndoSnapshot();
            case 7:
            case 8:
                return editor_.Tools().SelectTool(id);
            case 9:
                return editor_.SelectAll();
            case 10:
                return editor_.Selected().Delete();
            case 11:
                return commands_.Cut();
            case 12:
                return Paste();
            case 13:
            case 14:
                return editor_.Selected().MoveBy(Below(9) - 4, Below(9) - 4);
            case 15:
                return DropUnmoved();
            case 16:
                return i18n::SetUiLanguage(Below(2) == 0 ? i18n::kChinese : i18n::kEnglish);
            default:
                return Gesture();
        }
    }

    // What was copied, or a picture from elsewhere.
    void Paste() {
        if (Below(2) == 0) {
            clipboard_.image = gdi::Surface(1 + Below(40), 1 + Below(40));
            for (int y = 0; y < clipboard_.image->Height(); ++y) {
                for (gdi::COLORREF& pixel : clipboard_.image->Row(y))
                    pixel = Below(3) == 0 ? gdi::kWhite : static_cast<gdi::COLORREF>(random_());
            }
        }
        dialog_.fit = Below(2) == 0 ? PasteFit::Shrink : PasteFit::KeepAspect;
        static_cast<void>(
            commands_.Paste(Below(2) == 0 ? PasteMode::Opaque : PasteMode::Transparent));
    }
    // Lifts what is marked, and puts it down where it was.
    void DropUnmoved() {
        Selection& selection = editor_.Selected();
        if (!selection.SelectionMarked()) return;
        const document::IconDocument before = icon_;
        const std::size_t entries = editor_.History().UndoCount();
        const auto& [x1, y1, x2, y2] = selection.Marquee();
        const test::At at{x1 + Below(x2 - x1), y1 + Below(y2 - y1)};
        Stroke(Button::Left, {at, AnyPoint(), at});
        ASSERT_TRUE(selection.SelectionFloating());
        selection.DropSelection();
        ExpectSame(before);
        EXPECT_EQ(editor_.History().UndoCount(), entries + 1);
    }

    // Pixels that invert the screen come from the opened icon alone.
    void ExpectSoundPlanes(bool mayInvert) {
        for (int y = 0; y < 32; ++y) {
            for (int x = 0; x < 32; ++x) {
                const gdi::COLORREF mask = icon_.PicMask.GetPixel(x, y);
                const gdi::COLORREF color = icon_.PicImage.GetPixel(x, y);
                ASSERT_TRUE(mask == gdi::kBlack || mask == gdi::kWhite);
                ASSERT_TRUE(mask == gdi::kBlack || color == gdi::kBlack || mayInvert);
            }
        }
    }
    // Whoever watches the grid has been told of every pixel that changed.
    void ExpectRepainted(gdi::Surface watched) {
        const gdi::Surface& now = editor_.Views().PicMain;
        for (const auto& [view, area] : window_.repainted) {
            if (view != document::View::Grid) continue;
            gdi::BitBlt(watched, area.left, area.top, area.width, area.height, now, area.left,
                        area.top, gdi::RasterOp::Copy);
        }
        ASSERT_TRUE(test::ComparePicture(watched, now));
    }
    void ExpectSame(const document::IconDocument& expected) {
        EXPECT_TRUE(icon_.PicMask.SamePixels(expected.PicMask));
        EXPECT_TRUE(icon_.PicImage.SamePixels(expected.PicImage));
        EXPECT_TRUE(test::ViewsAreFresh(editor_));
    }

    std::mt19937 random_{4711};
    test::ScriptedColors cdb_;
    WellCommands wells_{editor_.Wells(), window_, cdb_};
    test::RecordingWindow dialog_;
    test::MemoryClipboard clipboard_;
    ClipboardCommands commands_{editor_, clipboard_, dialog_};
};

TEST_F(RandomWalkTest, LeavesNothingBehind) {
    icons::IconImage opened{{32, 32, 24, false}, icon_.PicMask, icon_.PicImage};
    for (int i = 0; i < 200; ++i) {
        opened.color.SetPixel(i % 32, 3 * (i / 32), random_() & gdi::kWhite);
        if (i % 2 == 0) opened.mask.SetPixel(i % 32, 3 * (i / 32), gdi::kBlack);
    }
    for (const bool fromFile : {false, true}) {
        editor_.ResetDocument();
        if (fromFile) editor_.ShowOpenedIcon(opened);
        const document::IconDocument first = icon_;
        for (int i = 0; i < 1500 && !HasFailure(); ++i) {
            const gdi::Surface before = editor_.Views().PicMain;
            Step();
            ExpectRepainted(before);
            window_.repainted.clear();
            ExpectSoundPlanes(fromFile);
            EXPECT_TRUE(test::ViewsAreFresh(editor_)) << "step " << i;
            EXPECT_EQ(editor_.Views().PicMain.state.drawMode, gdi::DrawMode::CopyPen);
        }
        editor_.Selected().DropSelection();
        while (editor_.CanRedo())
            editor_.PopRedoSnapshot();
        const document::IconDocument last = icon_;
        EXPECT_GT(editor_.History().UndoCount(), 100U);
        while (editor_.CanUndo())
            editor_.PopUndoSnapshot();
        ExpectSame(first);
        while (editor_.CanRedo())
            editor_.PopRedoSnapshot();
        ExpectSame(last);
        i18n::SetUiLanguage(i18n::kEnglish);
    }
}

}  // namespace
}  // namespace kestrel::editing
