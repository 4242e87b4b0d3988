#pragma once

#include <functional>
#include <random>

#include "commands/ClipboardCommands.h"
#include "commands/ImageCommands.h"
#include "commands/WellCommands.h"
#include "i18n/Language.h"
#include "tests/support/EditorTest.h"
#include "tests/support/Recorders.h"

namespace kestrel::test {

// Uses an editor as a user without a plan does.
class RandomWalk {
  public:
    RandomWalk(editing::Editor& editor, EditorRecorder& views, unsigned seed)
        : editor_(editor), views_(views), random_(seed) {}

    int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

    void Step() {
        if (Below(2) == 0) return Gesture();
        desktop_.color = random_() & gdi::kWhite;
        const std::function<void()> commands[] = {
            [&] { wells_.ImgTransparent_MouseUp(AnyButton()); },
            [&] { wells_.ImgInterchangeColor_MouseUp(AnyButton()); },
            [&] { wells_.PicForeColor_MouseUp(editing::Button::Left); },
            [&] { wells_.ImgDefaultColor_MouseUp(AnyButton()); },
            [&] { editor_.PopUndoSnapshot(); },
            [&] { editor_.PopRedoSnapshot(); },
            [&] { editor_.Tools().SelectTool(static_cast<editing::ToolId>(1 + Below(12))); },
            [&] { editor_.Tools().SelectTool(editing::ToolId::Selection); },
            [&] { editor_.SelectAll(); },
            [&] { editor_.Selected().Delete(); },
            [&] { editor_.Selected().MoveBy(Below(9) - 4, Below(9) - 4); },
            [&] { clips_.Cut(); },
            [&] { Paste(); },
            [&] { images_.Operate(AnyOperation()); },
            [&] { DropUnmoved(); },
            [&] { i18n::SetUiLanguage(Below(2) == 0 ? i18n::kChinese : i18n::kEnglish); },
        };
        commands[random_() % std::size(commands)]();
    }

    // What becomes of the document as a whole, and of the palette.
    void FileStep() {
        document::IconDocument& icon = editor_.Document();
        const std::function<void()> commands[] = {
            [&] { editor_.ResetDocument(); },
            [&] {
                icon.FilePath = "/icons/" + std::to_string(Below(100));
                icon.FileTitle = icon.FilePath.substr(7);
                icon.FileOnDisk = system::FileIdentity{.inode = random_(), .seconds = -1};
                icon.MultipleIcons = Below(2) == 0;
                icon.Modified = false;
                editor_.EndStep();
            },
            [&] { editor_.ColorPalette().SetColor(random_() % 256, random_() & gdi::kWhite); },
            [&] { editor_.ColorPalette().DrawPalette(editing::PaletteReload::Yes); },
            [&] { editor_.ColorPalette().SetChkPal(Below(2) == 0); },
            [&] { editor_.CanUndo(); },
        };
        commands[random_() % std::size(commands)]();
    }

    // Called in the midst of gestures.
    std::function<void()> onGesture;

  private:
    editing::Button AnyButton() {
        return Below(2) == 0 ? editing::Button::Left : editing::Button::Right;
    }
    std::string_view AnyOperation() {
        const auto operations = imaging::Operations();
        return operations[random_() % operations.size()].key;
    }
    // Mostly on the grid, sometimes beside it, seldom far away.
    At AnyPoint() {
        const int reach = Below(20) == 0 ? 32000 : 40;
        return {Below(320 + 2 * reach) - reach, Below(320 + 2 * reach) - reach};
    }

    void Gesture() {
        const editing::Button button = AnyButton();
        At at = AnyPoint();
        editor_.PicMain_MouseDown(button, at.x, at.y);
        for (int moves = Below(5); moves > 0; --moves) {
            at = AnyPoint();
            editor_.PicMain_MouseMove(Held(button), at.x, at.y);
            if (Below(8) != 0) continue;
            editor_.PicMain_MouseDown(Other(button), at.x, at.y);
            editor_.PicMain_MouseUp(Other(button), at.x, at.y);
        }
        if (onGesture) onGesture();
        // A command may take the mouse away.
        if (Below(10) == 0) editor_.EndGesture();
        editor_.PicMain_MouseUp(button, at.x, at.y);
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
        EXPECT_EQ(clips_.Paste(mode).has_value(), clipboard_.HasImage());
    }
    // Lifts what is marked, and puts it down where it was.
    void DropUnmoved() {
        const editing::Selection& selection = editor_.Selected();
        if (!selection.SelectionMarked()) return;
        const gdi::IconPlanes before = editor_.Document().Planes();
        const auto& [x1, y1, x2, y2] = selection.Marquee();
        const At at{x1 + Below(x2 - x1), y1 + Below(y2 - y1)};
        const At away = AnyPoint();
        editor_.PicMain_MouseMove({}, at.x, at.y);
        editor_.PicMain_MouseDown(editing::Button::Left, at.x, at.y);
        editor_.PicMain_MouseMove(Held(editing::Button::Left), away.x, away.y);
        editor_.PicMain_MouseUp(editing::Button::Left, at.x, at.y);
        ASSERT_TRUE(selection.SelectionFloating());
        editor_.Selected().DropSelection();
        ASSERT_TRUE(editor_.Document().Planes().SamePixels(before));
    }

    editing::Editor& editor_;
    EditorRecorder& views_;
    std::mt19937 random_;
    system::RandomNumbers noise_{1};
    OwnerOfDialogs owner_;
    AnsweredDialogs dialogs_;
    ScriptedDialogs desktop_;
    services::Cdb cdb_{desktop_, owner_};
    commands::WellCommands wells_{editor_.Wells(), views_.application, cdb_};
    MemoryClipboard clipboard_;
    commands::ClipboardCommands clips_{editor_, clipboard_, dialogs_};
    commands::ImageCommands images_{editor_, dialogs_, views_.application, noise_};
};

}  // namespace kestrel::test
