#include "platform/system/DiskFiles.h"

#include <csignal>
#include <random>

#include "platform/system/LetterCase.h"
#include "platform/system/PathText.h"
#include "tests/system/TemporaryFolder.h"

namespace kestrel::system {
namespace {

using Bytes = std::vector<std::uint8_t>;
using CallNames = std::vector<std::string>;

class DiskFilesTest : public TemporaryFolder {
  protected:
    int ReplaceError(const std::string& path, const std::string& text) {
        return NumberOf(files_.ReplaceFile(path, Bytes(text.begin(), text.end())));
    }

    DiskFiles files_;
};

// Makes the call of one number fail, and writes little at a time with interruptions.
class FailingCalls : public FileCalls {
  public:
    explicit FailingCalls(int failing) : failing_(failing) {}

    int Open(const std::string& path, int flags, mode_t mode) override {
        return Fails("open") ? -1 : FileCalls::Open(path, flags, mode);
    }
    ssize_t Write(int file, const void* bytes, std::size_t count) override {
        if (Fails("write")) return -1;
        interrupted_ = !interrupted_;
        errno = EINTR;
        return interrupted_ ? -1 : FileCalls::Write(file, bytes, std::min<std::size_t>(count, 2));
    }
    int ChangeMode(int file, mode_t mode) override {
        return Fails("mode") ? -1 : FileCalls::ChangeMode(file, mode);
    }
    int Sync(int file) override { return Fails("sync") ? -1 : FileCalls::Sync(file); }
    int Close(int file) override {
        FileCalls::Close(file);
        return Fails("close") ? -1 : 0;
    }
    int Rename(const std::string& from, const std::string& to) override {
        return Fails("rename") ? -1 : FileCalls::Rename(from, to);
    }

    std::string failed;

  private:
    bool Fails(const char* name) {
        if (++calls_ != failing_) return false;
        failed = name;
        errno = ENOSPC;
        return true;
    }

    int failing_;
    int calls_ = 0;
    bool interrupted_ = false;
};

// Saves with each call failing in turn; returns the calls whose failure failed the save, in order.
CallNames FatalCalls(const std::string& folder, const std::string& path, const std::string& old) {
    CallNames fatal;
    for (int failing = 1;; ++failing) {
        std::filesystem::remove(path);
        if (!old.empty()) MakeFile(path, old);
        chmod(path.c_str(), 0640);
        FailingCalls calls(failing);
        const Result<void> saved = DiskFiles(calls).ReplaceFile(path, Bytes{'n', 'e', 'w'});
        EXPECT_EQ(ContentOf(path), saved ? "new" : old) << calls.failed;
        const auto left = std::distance(std::filesystem::directory_iterator(folder), {});
        EXPECT_EQ(left, !saved && old.empty() ? 0 : 1) << calls.failed;
        if (calls.failed.empty()) return fatal;
        if (saved) continue;
        fatal.push_back(calls.failed);
        EXPECT_EQ(saved.error().number, ENOSPC);
    }
}

TEST_F(DiskFilesTest, FailureOfAnyCallLeavesTheOldFileAndNothingElse) {
    // "new" takes two writes of at most two bytes, each interrupted once.
    CallNames calls = {"open", "write", "write", "write", "write", "sync", "close", "rename"};
    EXPECT_EQ(FatalCalls(folder_, Path("a"), ""), calls);
    calls.insert(calls.begin() + 5, "mode");
    EXPECT_EQ(FatalCalls(folder_, Path("a"), "old"), calls);
}

TEST_F(DiskFilesTest, ReplacesTheFileThatThePathMeans) {
    MakeFile(Path("Icons/Bird.ico"), "old");
    std::filesystem::create_symlink("Icons/Bird.ico", Path("link"));
    std::filesystem::create_symlink("Icons/missing", Path("dangling"));
    for (const std::string name : {"Icons/Bird.ico", "icons\\BIRD.ICO", "link"}) {
        EXPECT_EQ(ReplaceError(Path(name), name), 0);
        EXPECT_EQ(ContentOf(Path("Icons/Bird.ico")), name);
    }
    EXPECT_EQ(ReplaceError(Path("dangling"), "made"), 0);
    EXPECT_EQ(ContentOf(Path("Icons/missing")), "made");
    EXPECT_TRUE(std::filesystem::is_symlink(Path("link")));
    EXPECT_EQ(Names(), (std::vector<std::string>{"Icons", "dangling", "link"}));
}

TEST_F(DiskFilesTest, KeepsOwnerAndPermissionsAndGivesNewFilesTheUsualOnes) {
    const mode_t before = umask(027);
    const std::string path = Path("new");
    EXPECT_EQ(ReplaceError(path, "x"), 0);
    EXPECT_EQ(StatusOf(path).st_mode & 07777U, 0640U);
    const uid_t owner = geteuid() == 0 ? 1234 : geteuid();
    EXPECT_EQ(chown(path.c_str(), owner, getegid()), 0);
    for (const mode_t mode : {0666U, 0755U, 0200U}) {
        chmod(path.c_str(), mode);
        EXPECT_EQ(ReplaceError(path, "y"), 0);
        EXPECT_EQ(StatusOf(path).st_mode & 07777U, mode);
        EXPECT_EQ(StatusOf(path).st_uid, owner);
    }
    umask(before);
}

TEST_F(DiskFilesTest, RefusesWhatIsNoWritableFile) {
    MakeFile(Path("kept"), "old");
    chmod(Path("kept").c_str(), 0444);
    mkfifo(Path("pipe").c_str(), 0600);
    std::filesystem::create_symlink("loop", Path("loop"));
    std::filesystem::create_symlink("kept", Path("link"));
    const std::pair<const char*, int> cases[] = {
        {"kept", EACCES}, {"link", EACCES},   {"", EISDIR},       {"pipe", EINVAL},
        {"loop", ELOOP},  {"none/a", ENOENT}, {"kept/a", ENOTDIR}};
    for (const auto& [name, number] : cases)
        EXPECT_EQ(ReplaceError(Path(name), "new"), number) << name;
    EXPECT_EQ(ContentOf(Path("kept")), "old");
    EXPECT_EQ(Names(), (std::vector<std::string>{"kept", "link", "loop", "pipe"}));
}

TEST_F(DiskFilesTest, ReadsRegularFilesUpToTheLimit) {
    constexpr std::size_t kLimit = 1000;
    MakeFile(Path("Full.ico"), std::string(kLimit, 'x'));
    mkfifo(Path("pipe").c_str(), 0600);
    EXPECT_EQ(files_.ReadFile(Path("FULL.ICO"), kLimit), Bytes(kLimit, 'x'));
    const std::tuple<std::string, std::size_t, int> cases[] = {
        {Path("Full.ico"), kLimit - 1, EFBIG},
        {Path("pipe"), kLimit, EINVAL},
        {folder_, kLimit, EISDIR},
        {"/dev/zero", kLimit, EINVAL},
        {"/proc/self/status", 10, EFBIG},
        {Path("none"), kLimit, ENOENT}};
    for (const auto& [path, limit, number] : cases)
        EXPECT_EQ(NumberOf(files_.ReadFile(path, limit)), number) << path;
    EXPECT_TRUE(files_.ReadFile("/proc/self/status", 1U << 20U));  // states no size
    EXPECT_TRUE(files_.RemoveFile(Path("full.ico")));
    EXPECT_FALSE(files_.FileExists(Path("Full.ico")));
    EXPECT_FALSE(files_.FileExists(folder_));
}

TEST_F(DiskFilesTest, KilledSavesLeaveOldOrNew) {
    const std::string contents[] = {std::string(3262, '\x11'), std::string(3262, '\xEE')};
    MakeFile(Path("a.ico"), contents[0]);
    std::mt19937 random(std::random_device{}());
    std::uniform_int_distribution<useconds_t> delay(500, 10000);
    int seen[2] = {0, 0};
    for (int kill = 0; kill < 60; ++kill) {
        const pid_t child = fork();
        if (child == 0) {
            // A child that gets little time must not always write the same first content.
            for (int turn = kill; turn < kill + 100000; ++turn)
                if (ReplaceError(Path("a.ico"), contents[turn % 2]) != 0) _exit(1);
            _exit(0);
        }
        usleep(delay(random));
        ::kill(child, SIGKILL);
        EXPECT_EQ(ExitStatus(child), -1) << "the saving ended by itself";
        const std::string content = ContentOf(Path("a.ico"));
        const bool isNew = content == contents[1];
        ASSERT_TRUE(isNew || content == contents[0]) << content.size() << " bytes";
        ++seen[isNew ? 1 : 0];
    }
    EXPECT_GT(seen[0], 0);
    EXPECT_GT(seen[1], 0);
}

TEST(PathText, SplitsAndCapitalises) {
    EXPECT_EQ(FolderOf("C:\\Icons/a\\b.ico"), "C:\\Icons/a");
    EXPECT_EQ(FileTitleOf("C:\\Icons\\a/b.ico"), "b.ico");
    EXPECT_EQ(FolderOf("a.ico"), "");
    EXPECT_EQ(FileTitleOf("a.ico"), "a.ico");
    EXPECT_EQ(ProperCase("/home/my icons\\bIRD-two ÄRGER"), "/Home/My Icons\\Bird-two Ärger");
}

TEST(LetterCase, FoldsLettersOfEveryScriptAndComparesStrayBytesAsBytes) {
    EXPECT_TRUE(SameName("ÄÖÜ ΩМИР Ｚ图 A\xFF", "äöü ωмир ｚ图 a\xFF"));
    EXPECT_FALSE(SameName("a\xC3", "a\xE3"));
    // Overlong forms and surrogates are no characters.
    EXPECT_EQ(FoldCase("\xC1\x81\xED\xA0\x80").size(), 5U);
    EXPECT_EQ(FoldCase("\xF0\x9F\x98\x80\xF0\x9F"), (std::u32string{0x1F600, 0x1100F0, 0x11009F}));
}

TEST_F(DiskFilesTest, FindsEachComponentAsWrittenOrInOtherLetterCase) {
    for (const char* name : {"Icons/Vögel/Star.ico", "Icons/b.ico", "Icons/B.ico", "icons/only",
                             "odd\\name", "Raw\xFF"})
        MakeFile(Path(name), "");
    const char* cases[][2] = {
        {"Icons\\VÖGEL\\STAR.ICO", "Icons/Vögel/Star.ico"},
        {"ICONS/vögel//./star.ico", "Icons/Vögel//./Star.ico"},
        {"Icons/b.ICO", "Icons/B.ico"},  // of several the first in byte order
        {"Icons/b.ico", "Icons/b.ico"},  // an exact name before any other
        {"Icons/only", "Icons/only"},    // an exact folder is never left for another
        {"odd\\name", "odd\\name"},      // a name that really has a backslash
        {"ICONS\\new\\Later.ico", "Icons/new/Later.ico"},
        {"raw\xFF", "Raw\xFF"},
        {"raw\xFE", "raw\xFE"}};
    for (const auto& [written, found] : cases)
        EXPECT_EQ(ResolvePath(Path(written)), Path(found));
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(Path("Icons/Vögel"));
    EXPECT_EQ(ResolvePath("STAR.ico"), "Star.ico");
    std::filesystem::current_path(before);
}

}  // namespace
}  // namespace kestrel::system
