#include "services/FileNameRules.h"

#include "tests/support/Recorders.h"
#include "tests/system/TemporaryFolder.h"

namespace kestrel::services {
namespace {

using namespace std::string_literals;
using enum FilePurpose;
using enum FileNameRules::Verdict;

class FileNameRulesTest : public system::TemporaryFolder {
  protected:
    FileNameRulesTest() {
        for (const char* name : {"bird.ico", "st*r.ico", "plain", "sub/kite.ico"})
            system::MakeFile(Path(name), "");
        record_.defaultExtension = ".ico";
        record_.flags = kFileMustExist | kPathMustExist | kOverwritePrompt;
    }

    FileRecord record_;
    test::ScriptedBoxes boxes_;
};

TEST_F(FileNameRulesTest, NamesAreTakenCompletedOrRefused) {
    struct {
        FilePurpose purpose;
        const char *typed, *box;  // empty: none
        Answer answer;
        FileNameRules::Verdict verdict;
        const char* path;
    } const cases[] = {
        {Save, "new", "", {}, Take, "new.ico"},
        {Save, "bird", "bird.ico already exists.", Answer::No, Stay, "bird.ico"},
        {Save, "BIRD.Ico", "bird.ico already exists.", Answer::Yes, Take, "bird.ico"},
        {Save, "what?", "what?\r\nThe file name is not valid.", {}, Stay, "what?.ico"},
        {Save, "\"b\".ico", "\"b\".ico\r\nThe file name is not valid.", {}, Stay, "\"b\".ico"},
        {Save, "st*r", "st*r.ico already exists.", Answer::Yes, Take, "st*r.ico"},
        {Save, "gone/a", "/gone\r\nDirectory not found.", {}, Stay, "gone/a.ico"},
        {Save, "SUB\\a", "", {}, Take, "sub/a.ico"},
        {Save, "SUB", "", {}, Enter, "sub"},
        {Open, "*", "*\r\nThe file name is not valid.", {}, Stay, "*.ico"},
        {Open, "none", "none.ico\r\nFile not found.", {}, Stay, "none.ico"},
        {Open, "Bird", "", {}, Take, "bird.ico"},
        {Open, "plain", "", {}, Take, "plain"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        boxes_ = {};
        boxes_.answers = {c.answer};
        std::vector<std::string> paths{Path(c.typed)};
        EXPECT_EQ(FileNameRules(boxes_, c.purpose, record_).Judge(paths, c.typed), c.verdict);
        EXPECT_EQ(paths, std::vector{Path(c.path)});
        const std::string told = boxes_.shown.empty() ? "" : boxes_.shown[0].text;
        EXPECT_TRUE(told.empty() == (*c.box == '\0') && told.find(c.box) != told.npos) << told;
    }
}

TEST_F(FileNameRulesTest, AnswersFitTheBuffer) {
    std::vector<std::string> paths{"/a/图.ico", "/a/b"};
    AnswerIn(record_, paths);
    EXPECT_EQ(record_.file + record_.fileTitle, "/a\0图.ico\0b\0"s);
    paths.pop_back();
    record_.flags = 0;
    record_.maxFile = 9;
    EXPECT_EQ(FileNameRules(boxes_, Save, record_).Judge(paths, "图"), Take);
    --record_.maxFile;
    EXPECT_EQ(FileNameRules(boxes_, Save, record_).Judge(paths, "图"), Stay);
    EXPECT_EQ(boxes_.shown.at(0).text, "图.ico\r\nThe file name is too long.");
}

}  // namespace
}  // namespace kestrel::services
