#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>

#include "commands/ClipboardCommands.h"
#include "commands/WellCommands.h"
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
            editor_.PicMain_MouseMove(test::Held(button), at.x, at.y);
            if (Below(8) != 0) continue;
            editor_.PicMain_MouseDown(Other(button), at.x, at.y);
            editor_.PicMain_MouseUp(Other(button), at.x, at.y);
        }
        ExpectRepainted(before);
        // A command may take the mouse away.
        if (Below(10) == 0) editor_.EndGesture();
        editor_.PicMain_MouseUp(button, at.x, at.y);
    }

    void Step() {
        if (Below(2) == 0) return Gesture();
        desktop_.color = random_() & gdi::kWhite;
        const std::function<void()> commands[] = {
            [&] { wells_.ImgTransparent_MouseUp(AnyButton()); },
            [&] { wells_.ImgInterchangeColor_MouseUp(AnyButton()); },
            [&] { wells_.PicForeColor_MouseUp(Button::Left); },
            [&] { wells_.ImgDefaultColor_MouseUp(AnyButton()); },
            [&] { editor_.PopUndoSnapshot(); },
            [&] { editor_.PopRedoSnapshot(); },
            [&] { editor_.Tools().SelectTool(static_cast<ToolId>(1 + Below(12))); },
            [&] { editor_.Tools().SelectTool(ToolId::Selection); },
            [&] { editor_.SelectAll(); },
            [&] { editor_.Selected().Delete(); },
            [&] { editor_.Selected().MoveBy(Below(9) - 4, Below(9) - 4); },
            [&] { commands_.Cut(); },
            [&] { Paste(); },
            [&] { DropUnmoved(); },
            [&] { i18n::SetUiLanguage(Below(2) == 0 ? i18n::kChinese : i18n::kEnglish); },
        };
        commands[random_() % std::size(commands)]();
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
        dialogs_.fit = Below(2) == 0 ? imaging::PasteFit::Shrink : imaging::PasteFit::KeepAspect;
        const auto mode =
            Below(2) == 0 ? imaging::PasteMode::Opaque : imaging::PasteMode::Transparent;
        EXPECT_EQ(commands_.Paste(mode).has_value(), clipboard_.HasImage());
    }
    // Lifts what is marked, and puts it down where it was.
    void DropUnmoved() {
        const Selection& selection = editor_.Selected();
        if (!selection.SelectionMarked()) return;
        const gdi::IconPlanes before = icon_.Planes();
        const auto& [x1, y1, x2, y2] = selection.Marquee();
        const test::At at{x1 + Below(x2 - x1), y1 + Below(y2 - y1)};
        Stroke(Button::Left, {at, AnyPoint(), at});
        ASSERT_TRUE(selection.SelectionFloating());
        editor_.Selected().DropSelection();
        ExpectSame(before);
    }
    // Whoever watches the grid has been told of every pixel that changed.
    void ExpectRepainted(gdi::Surface watched) {
        const gdi::Surface& now = editor_.Views().PicMain;
        for (const gdi::Rect& area : views_.repainted) {
            gdi::BitBlt(watched, area.left, area.top, area.width, area.height, now, area.left,
                        area.top, gdi::RasterOp::Copy);
        }
        ASSERT_TRUE(test::ComparePicture(watched, now));
    }
    void ExpectSame(const gdi::IconPlanes& expected) {
        ASSERT_TRUE(icon_.Planes().SamePixels(expected));
    }
    // A transparent pixel is black; those that invert the screen come from the opened icon alone.
    bool IsSound() {
        const auto masks = icon_.PicMask().Pixels();
        const auto colors = icon_.PicImage().Pixels();
        return std::ranges::equal(masks, colors, [](gdi::COLORREF mask, gdi::COLORREF color) {
            return mask == gdi::kBlack || (mask == gdi::kWhite && color == gdi::kBlack);
        });
    }

    std::mt19937 random_{4711};
    test::OwnerOfDialogs owner_;
    test::AnsweredDialogs dialogs_;
    test::ScriptedDialogs desktop_;
    services::Cdb cdb_{desktop_, owner_};
    commands::WellCommands wells_{editor_.Wells(), views_.application, cdb_};
    test::MemoryClipboard clipboard_;
    commands::ClipboardCommands commands_{editor_, clipboard_, dialogs_};
};

TEST_F(RandomWalkTest, LeavesNothingBehind) {
    formats::IconImage opened{{32, 32, 24, false}, icon_.Planes()};
    for (int i = 0; i < 200; ++i) {
        opened.planes.image.SetPixel(i % 32, i / 6, random_() & gdi::kWhite);
        if (i % 2 == 0) opened.planes.mask.SetPixel(i % 32, i / 6, gdi::kBlack);
    }
    for (const bool fromFile : {false, true}) {
        editor_.ResetDocument();
        if (fromFile) editor_.ReadIconIntoDocument(opened);
        const gdi::IconPlanes first = icon_.Planes();
        for (int i = 0; i < 1500 && !HasFailure(); ++i) {
            const gdi::Surface before = editor_.Views().PicMain;
            Step();
            ExpectRepainted(before);
            views_.repainted.clear();
            EXPECT_TRUE(fromFile || IsSound());
            EXPECT_TRUE(test::ViewsAreFresh(editor_)) << "step " << i;
            EXPECT_EQ(editor_.Views().PicMain.state.drawMode, gdi::DrawMode::CopyPen);
        }
        editor_.Selected().DropSelection();
        while (editor_.CanRedo())
            editor_.PopRedoSnapshot();
        EXPECT_GT(editor_.History().UndoCount(), 100U);
        std::vector<gdi::IconPlanes> undone;
        while (editor_.CanUndo()) {
            undone.push_back(icon_.Planes());
            editor_.PopUndoSnapshot();
        }
        ExpectSame(first);
        for (; !undone.empty(); undone.pop_back()) {
            editor_.PopRedoSnapshot();
            ExpectSame(undone.back());
        }
        i18n::SetUiLanguage(i18n::kEnglish);
    }
}

}  // namespace
}  // namespace kestrel::editing
