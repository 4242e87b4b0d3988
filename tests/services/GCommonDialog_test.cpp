#include "services/GCommonDialog.h"

#include <gtest/gtest.h>

#include "services/Cdb.h"
#include "tests/support/Recorders.h"

namespace kestrel::services {
namespace {

using namespace std::string_literals;

class GCommonDialogTest : public testing::Test {
  protected:
    bool Open(bool fileMustExist, bool multiSelect, bool hideReadOnly) {
        return dialog_.VBGetOpenFileName(name_, title_, fileMustExist, multiSelect, readOnly_,
                                         hideReadOnly, filter_, index_, "/pictures", "Title", "PAL",
                                         5, flags_);
    }
    bool Save(bool overwritePrompt) {
        return dialog_.VBGetSaveFileName(name_, title_, overwritePrompt, filter_, index_, "/p", "T",
                                         "PAL", kNoOwner, flags_);
    }

    test::ScriptedDialogs desktop_;
    GCommonDialog dialog_{desktop_};
    std::string name_ = "old.pal";
    std::string title_ = "old";
    std::string filter_ = "A: b|*.a;*.b|All (*.*)|*.*";
    int index_ = 2;
    bool readOnly_ = false;
    std::uint32_t flags_ = 0x80060;
};

TEST_F(GCommonDialogTest, AsksTheDesktopAndTakesItsAnswer) {
    desktop_.choice = "/a/b.pal";
    desktop_.alsoChanges = [](FileRecord& record) {
        record.file += "\0junk"s;
        record.fileTitle += "\0junk"s;
        record.filterIndex = 1;
        record.flags |= 0x401;
    };
    EXPECT_TRUE(Open(true, true, true));
    const FileRecord& asked = desktop_.opens.at(0);
    EXPECT_EQ(asked.owner, 5);
    EXPECT_EQ(asked.filter, "A\0 b\0*.a;*.b\0All (*.*)\0*.*\0\0"s);
    EXPECT_EQ(asked.filterIndex, 2);
    EXPECT_EQ(asked.file + asked.fileTitle, "old.palold");
    EXPECT_EQ(asked.initialFolder + asked.title + asked.defaultExtension, "/picturesTitlePAL");
    EXPECT_EQ(std::pair(asked.maxFile, asked.flags), std::pair(std::size_t{260}, 0x81204U));
    EXPECT_EQ(name_, "/a/b.pal");
    EXPECT_EQ(title_, "b.pal");
    EXPECT_EQ(filter_, "A: b|*.a;*.b|All (*.*)|*.*");
    EXPECT_EQ(index_, 1);
    EXPECT_EQ(flags_, 0x81605U);
    EXPECT_TRUE(readOnly_);

    flags_ = 0;
    desktop_.alsoChanges = [](FileRecord& record) { record.flags = 0; };
    EXPECT_TRUE(Open(false, false, false));
    EXPECT_EQ(desktop_.opens.at(1).flags, 0x1U);
    EXPECT_FALSE(readOnly_) << "the user took the tick away";
    EXPECT_TRUE(Save(true));
    EXPECT_TRUE(Save(false));
    EXPECT_EQ(desktop_.saves.at(0).flags, 0x6U);
    EXPECT_EQ(desktop_.saves.at(1).flags, 0x4U);
}

TEST_F(GCommonDialogTest, CancelClearsWhatWasGivenAndTellsWhy) {
    for (const std::int32_t error : {0, 0x2001}) {
        desktop_.error = error;
        std::tie(name_, title_, filter_, flags_) = std::tuple("old.pal", "old", "A|*.a", 8U);
        EXPECT_FALSE(error == 0 ? Open(true, false, true) : Save(true));
        EXPECT_EQ(name_ + title_ + filter_, "");
        EXPECT_EQ(flags_, 0U);
        EXPECT_EQ(dialog_.ExtendedError(), error);
    }
    desktop_.choice = "/a";
    EXPECT_TRUE(Save(true));
    EXPECT_EQ(dialog_.ExtendedError(), 0);
}

TEST(Cdb, TellsCancelFromFailureAndRemembersColours) {
    test::ScriptedDialogs desktop;
    const test::OwnerOfDialogs window;
    Cdb cdb(desktop, window);
    for (const auto& [reason, number] : {std::pair{0, kDialogCancelled}, {2, 2}}) {
        desktop.error = reason;
        EXPECT_EQ(cdb.ShowOpen({}).error().number, number);
        EXPECT_EQ(cdb.ShowSave({}).error().number, number);
        EXPECT_EQ(cdb.ShowColor(0).error().number, number);
    }
    EXPECT_EQ(desktop.colors.at(0).customColors[3], 0xFFFFFFU);
    EXPECT_EQ(desktop.colors.at(0).flags, 0x3U);

    desktop.choice = "/a/b.ico";
    desktop.color = 0x123456;
    const auto chosen = cdb.ShowSave({.title = "T",
                                      .filter = "A:|*.a",
                                      .filterIndex = 3,
                                      .defaultExtension = ".ico",
                                      .fileName = "f",
                                      .flags = 0x806});
    EXPECT_EQ(chosen->path + chosen->fileTitle, "/a/b.icob.ico");
    const FileRecord& asked = desktop.saves.back();
    EXPECT_EQ(asked.title + asked.defaultExtension + asked.file, "T.icof");
    EXPECT_EQ(asked.filter, "A:\0*.a\0\0"s);
    EXPECT_EQ(std::pair(asked.filterIndex, asked.flags), std::pair(3, 0x806U));
    EXPECT_EQ(asked.maxFile, 0U) << "any path";
    for (int twice = 0; twice < 2; ++twice)
        EXPECT_EQ(cdb.ShowColor(0), 0x123456U);
    EXPECT_EQ(desktop.colors.back().customColors[3], 0x123456U);
    for (const auto owner : {desktop.saves[0].owner, desktop.colors[0].owner})
        EXPECT_EQ(owner, test::OwnerOfDialogs::kHandle);
}

}  // namespace
}  // namespace kestrel::services
