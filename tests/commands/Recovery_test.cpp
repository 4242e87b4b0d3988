#include "commands/Recovery.h"

#include <gtest/gtest.h>

#include "editing/WorkLog.h"
#include "tests/support/Services.h"
#include "tests/system/TemporaryFolder.h"

namespace kestrel::commands {
namespace {

using services::Answer;

class RecoveryTest : public system::TemporaryFolder {
  protected:
    // A program that paints a pixel of this icon column and ends without a save.
    struct Run {
        explicit Run(const std::string& folder, int column)
            : log(folder), editor(views.Views(log), 0) {
            editor.Document().FilePath = "/icons/a.ico";
            editor.EditIcon(editing::Leaves::Entry).PaintCell(column, 0, 0x0000FF);
        }
        test::EditorRecorder views;
        editing::WorkLog log;
        editing::Editor editor;
    };

    // A start whose user answers so; the columns that are painted then.
    std::string Start(Answer answer) {
        test::EditorRecorder views;
        test::ScriptedBoxes boxes;
        boxes.answers = {answer};
        editing::WorkLog log(folder_);
        editing::Editor editor(views.Views(log), 0);
        Recovery(editor, log, document::JournalFolder(folder_), boxes).Offer();
        asked_ = std::move(boxes.shown);
        std::string columns;
        for (int x = 0; x < 32; ++x)
            columns += editor.Document().IsTransparent(x, 0) ? "" : std::to_string(x) + " ";
        EXPECT_EQ(editor.Document().IsUntitled(), columns.empty());
        return columns;
    }

    std::vector<test::ScriptedBoxes::Shown> asked_;
};

TEST_F(RecoveryTest, OffersTheNewestOfEndedRunsUntilItIsAnswered) {
    const Run running(folder_, 1);
    { const Run older(folder_, 2); }
    { const Run newer(folder_, 3); }
    EXPECT_EQ(Start(Answer::Yes), "3 ");
    EXPECT_EQ(asked_.at(0).preset, Answer::Yes);
    // The program ended while it asked.
    EXPECT_EQ(Start(Answer::Cancel), "");
    EXPECT_EQ(Start(Answer::Yes), "3 ");
    // What was restored and left unsaved again is the newest.
    EXPECT_EQ(Start(Answer::Yes), "3 ");
    EXPECT_EQ(Start(Answer::No), "");
    EXPECT_EQ(Start(Answer::No), "");
    EXPECT_EQ(asked_.size(), 1U);
    EXPECT_EQ(Start(Answer::Yes), "");
    EXPECT_TRUE(asked_.empty());
    // The one set aside last, and that of the running program.
    EXPECT_EQ(Names().size(), 2U);
    EXPECT_EQ(system::ModeOf(Path("discarded")), 0600U);
}

}  // namespace
}  // namespace kestrel::commands
