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
        record_.title = "Title";
        record_.defaultExtension = ".ico";
        record_.flags = kFileMustExist | kPathMustExist | kOverwritePrompt;
    }

    FileRecord record_;
    test::ScriptedBoxes boxes_;
};

TEST_F(FileNameRulesTest, NamesAreTakenCompletedOrRefused) {
    struct {
        FilePurpose purpose;
        const char* typed;
        Answer answer;
        const char* box;  // null: none
        FileNameRules::Verdict verdict;
        const char* chosen;
    } const cases[] = {
        {Save, "new", {}, nullptr, Take, "new.ico"},
        {Save, "new.x", {}, nullptr, Take, "new.x"},
        {Save, "bird", Answer::No, "bird.ico already exists.", Stay, "bird.ico"},
        {Save, "BIRD.Ico", Answer::Yes, "bird.ico already exists.", Take, "bird.ico"},
        {Save, "what?", {}, "what?\r\nThe file name is not valid.", Stay, "what?.ico"},
        {Save, "a\"b\".ico", {}, "a\"b\".ico\r\nThe file name is not valid.", Stay, "a\"b\".ico"},
        {Save, "st*r", Answer::Yes, "st*r.ico already exists.", Take, "st*r.ico"},
        {Save, "gone/a", {}, "/gone\r\nDirectory not found.", Stay, "gone/a.ico"},
        {Save, "SUB\\a", {}, nullptr, Take, "sub/a.ico"},
        {Save, "SUB", {}, nullptr, Enter, "sub"},
        {Open, "sub/", {}, nullptr, Enter, "sub/"},
        {Open, "*", {}, "*\r\nThe file name is not valid.", Stay, "*.ico"},
        {Open, "none", {}, "none.ico\r\nFile not found.", Stay, "none.ico"},
        {Open, "Bird.ICO", {}, nullptr, Take, "bird.ico"},
        {Open, "Bird", {}, nullptr, Take, "bird.ico"},
        {Open, "plain", {}, nullptr, Take, "plain"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        boxes_ = {};
        boxes_.answers = {c.answer};
        std::vector<std::string> paths{Path(c.typed)};
        EXPECT_EQ(FileNameRules(boxes_, c.purpose, record_).Judge(paths, c.typed), c.verdict);
        EXPECT_EQ(paths, std::vector{Path(c.chosen)});
        ASSERT_EQ(boxes_.shown.size(), c.box == nullptr ? 0 : 1);
        if (c.box == nullptr) continue;
        EXPECT_NE(boxes_.shown[0].text.find(c.box), std::string::npos) << boxes_.shown[0].text;
        EXPECT_EQ(boxes_.shown[0].title, "Title");
    }
    // Without the flags nothing is asked.
    record_.flags = 0;
    for (const auto& [purpose, name] :
         {std::pair{Open, "none.ico"}, {Save, "bird.ico"}, {Save, "gone/a"}}) {
        std::vector<std::string> paths{Path(name)};
        EXPECT_EQ(FileNameRules(boxes_, purpose, record_).Judge(paths, name), Take) << name;
    }
}

TEST_F(FileNameRulesTest, AnswersFitTheBuffer) {
    const std::vector<std::string> both{"/a/图.ico", "/a/b"};
    AnswerIn(record_, both);
    EXPECT_EQ(record_.file, "/a\0图.ico\0b\0"s);
    EXPECT_EQ(record_.fileTitle, "");
    AnswerIn(record_, {both[0]});
    EXPECT_EQ(record_.file + record_.fileTitle, "/a/图.ico图.ico");
    record_.flags = 0;
    for (const std::size_t room : {9U, 8U}) {
        record_.maxFile = room;
        std::vector<std::string> paths{both[0]};
        EXPECT_EQ(FileNameRules(boxes_, Save, record_).Judge(paths, "图"),
                  room == 9U ? Take : Stay);
    }
    EXPECT_EQ(boxes_.shown.at(0).text, "图.ico\r\nThe file name is too long.");
}

}  // namespace
}  // namespace kestrel::services
