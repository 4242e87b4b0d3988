#include "commands/ImageCommands.h"
#include "tests/support/EditorTest.h"
#include "tests/support/Recorders.h"

namespace kestrel::commands {
namespace {

using editing::Button;
using test::At;

enum class State { None, Marked, Floating };

// An opaque block of 6 x 4 pixels at (8, 8), each of its own colour; the rest is transparent.
class ImageCommandsTest : public test::EditorTest {
  protected:
    ImageCommandsTest() {
        for (int i = 0; i < 24; ++i)
            Paint({8 + i % 6, 8 + i / 6}, 0x102030U * static_cast<unsigned>(i % 10 + 1));
        editor_.History().PushUndoSnapshot();
    }
    void Put(State state) {
        if (state == State::None) return;
        editor_.Tools().SelectTool(editing::ToolId::Selection);
        Stroke(Button::Left, {{80, 80}, {140, 120}});
        if (state == State::Floating) Stroke(Button::Left, {{105, 105}, {105, 105}});
    }
    gdi::COLORREF Seen(At cell) { return editor_.Composited().image.GetPixel(cell.x, cell.y); }

    test::AnsweredDialogs dialogs_;
    system::RandomNumbers random_{1};
    ImageCommands images_{editor_, dialogs_, views_.application, random_};
};

TEST_F(ImageCommandsTest, EachStateKeepsItsPathAndItsCountOfEntries) {
    using enum State;
    const struct {
        const char* key;
        // Entries that it records without, with a marked and with a floating selection.
        std::array<std::size_t, 3> entries;
        // Where the colour of the block's top left pixel goes, and what it becomes.
        At to;
        gdi::COLORREF color;
        std::array<State, 3> after = {None, Marked, Floating};
    } kCommands[] = {
        {"mnuRotateOpts3", {1, 0, 0}, {13, 8}, 0x102030},
        {"mnuRotateOpts4", {1, 0, 0}, {8, 11}, 0x102030},
        {"mnuMirrorOpts0", {1, 1, 1}, {13, 8}, 0x102030},
        {"mnuMirrorOpts2", {1, 1, 1}, {8, 11}, 0x102030},
        {"mnuRotateOpts0", {1, 0, 0}, {8, 13}, 0x102030, {None, Floating, Floating}},
        {"mnuRotateOpts1", {1, 0, 0}, {11, 8}, 0x102030, {None, Floating, Floating}},
        {"mnuNegative", {1, 1, 1}, {8, 8}, 0xEFDFCF},
        {"mnuImageOpts3", {1, 0, 0}, {8, 8}, 0xEFDFCF},
        // (222 x 0x30 + 707 x 0x20 + 71 x 0x10) / 1000 = 34.4
        {"mnuImageOpts2", {1, 0, 0}, {8, 8}, 0x222222},
        {"mnuGamma", {1, 1, 1}, {8, 8}, 0x102030},    // cancelled
        {"mnuFilters", {0, 0, 0}, {8, 8}, 0x102030},  // no such command
    };
    const document::IconDocument original = icon_;
    for (const auto& command : kCommands) {
        for (const State state : {None, Marked, Floating}) {
            SCOPED_TRACE(testing::Message() << command.key << " " << static_cast<int>(state));
            editor_.ResetDocument();
            icon_.ChangePlanes() = original.Planes();
            editor_.Views().RedrawAll();
            editor_.History().PushUndoSnapshot();
            Put(state);
            const auto index = static_cast<std::size_t>(state);
            const std::size_t before = editor_.History().UndoCount();
            icon_.Modified = false;
            images_.Operate(command.key);
            EXPECT_EQ(editor_.History().UndoCount() - before, command.entries[index]);
            const editing::Selection& selection = editor_.Selected();
            EXPECT_EQ(selection.SelectionMarked(), command.after[index] == Marked);
            EXPECT_EQ(selection.SelectionFloating(), command.after[index] == Floating);
            const bool aboutItsBlock = state != None;
            EXPECT_TRUE(!aboutItsBlock || Seen(command.to) == command.color);
            EXPECT_EQ(icon_.Modified, std::string_view(command.key) != "mnuFilters");
            EXPECT_TRUE(test::ViewsAreFresh(editor_));
        }
    }
}

TEST_F(ImageCommandsTest, HalvesAreMirroredWhereTheyAreEqual) {
    EXPECT_TRUE(images_.CanMirrorColumns() && images_.CanMirrorRows());
    editor_.Tools().SelectTool(editing::ToolId::Selection);
    Stroke(Button::Left, {{80, 80}, {150, 120}});
    EXPECT_FALSE(images_.CanMirrorColumns());
    EXPECT_TRUE(images_.CanMirrorRows());
}

TEST_F(ImageCommandsTest, AFilterSparesTransparentPixelsAndWhatLiesUnderASelection) {
    icon_.ChangePlanes().image.SetPixel(0, 0, 0x123456);  // an inverted-screen pixel
    Put(State::Floating);
    const document::IconDocument under = icon_;
    images_.Operate("mnuNegative");
    EXPECT_TRUE(icon_.Planes().SamePixels(under.Planes()));
    editor_.Selected().DropSelection();
    images_.Operate("mnuNegative");
    EXPECT_EQ(Seen({8, 8}), 0x102030U) << "twice";
    EXPECT_EQ(Seen({0, 0}), 0x123456U);
    EXPECT_EQ(Seen({1, 1}), gdi::kBlack);
}

TEST_F(ImageCommandsTest, AFilterWithinAFilterOnlyLeavesItsEntry) {
    views_.application.onEvents = [this] { images_.Operate("mnuNegative"); };
    images_.Operate("mnuSwapBank4");
    EXPECT_EQ(Seen({8, 8}), 0x302010U);
    EXPECT_EQ(editor_.History().UndoCount(), 4U);
    dialogs_.gamma = 200;
    images_.Operate("mnuGamma");
    EXPECT_EQ(Seen({8, 8}), 0x6F5A40U) << "255 x (v / 255) ^ 0.5 for 48, 32 and 16";
}

TEST_F(ImageCommandsTest, ColorsAreAdjustedOnThePutDownIcon) {
    Put(State::Floating);
    bool accepts = false;
    dialogs_.adjust = [&accepts](imaging::ColorAdjustment& colors) {
        colors.Change(imaging::AdjustmentBar::Red, 100);
        colors.Change(imaging::AdjustmentBar::Green, -3);
        return accepts;
    };
    images_.AdjustColors();
    EXPECT_FALSE(editor_.Selected().Exists());
    EXPECT_EQ(editor_.History().UndoCount(), 3U) << "of the selection alone";
    EXPECT_EQ(Seen({8, 8}), 0x102030U);
    EXPECT_TRUE(dialogs_.shown.SamePixels(editor_.Views().PicIcon));
    accepts = true;
    images_.AdjustColors();
    EXPECT_EQ(Seen({8, 8}), 0x101B35U);
    EXPECT_EQ(editor_.History().UndoCount(), 4U);
    EXPECT_TRUE(test::ViewsAreFresh(editor_));
}

TEST_F(ImageCommandsTest, AGradientAndAButtonReplaceTheWholeIcon) {
    Put(State::Floating);
    images_.GradientBackground();
    EXPECT_TRUE(editor_.Selected().SelectionFloating()) << "cancelled";
    dialogs_.gradient = gdi::Surface(32, 32, 0xFFFFFF);
    images_.GradientBackground();
    EXPECT_FALSE(editor_.Selected().Exists());
    EXPECT_EQ(OpaquePixels(), 1024);
    EXPECT_EQ(editor_.History().UndoCount(), 4U);
    editor_.SelectAll();
    images_.Operate("mnuImageOpts1");
    EXPECT_FALSE(editor_.Selected().Exists());
    EXPECT_EQ(Seen({31, 0}), 0xBFBFBFU);
    EXPECT_EQ(Seen({4, 4}), 0xFFFFFFU);
    EXPECT_EQ(editor_.History().UndoCount(), 5U);
    EXPECT_TRUE(test::ViewsAreFresh(editor_));
}

}  // namespace
}  // namespace kestrel::commands
