#include "platform/system/DiskFiles.h"

#include <algorithm>
#include <cerrno>
#include <vector>

#include "platform/system/LetterCase.h"
#include "platform/system/LockFile.h"
#include "platform/system/PathText.h"
#include "tests/system/TemporaryFolder.h"

namespace kestrel::system {
namespace {

using Bytes = std::vector<std::uint8_t>;

class DiskFilesTest : public TemporaryFolder {
  protected:
    int ReplaceError(const std::string& path, const std::string& text) {
        return NumberOf(files_.ReplaceFile(path, Bytes(text.begin(), text.end())));
    }

    DiskFiles files_;
};

// Makes the call of one number fail, or all links, and writes little at a time with interruptions.
class FailingCalls : public FileCalls {
  public:
    FailingCalls(int failing, bool links) : failing_(failing), links_(links) {}

    int Open(const std::string& path, int flags, mode_t mode) override {
        return Fails() ? -1 : FileCalls::Open(path, flags, mode);
    }
    ssize_t Write(int file, const void* bytes, std::size_t count) override {
        if (Fails()) return -1;
        interrupted_ = !interrupted_;
        errno = EINTR;
        return interrupted_ ? -1 : FileCalls::Write(file, bytes, std::min<std::size_t>(count, 2));
    }
    int ChangeMode(int file, mode_t mode) override {
        return Fails() ? -1 : FileCalls::ChangeMode(file, mode);
    }
    int Sync(int file) override { return Fails() ? -1 : FileCalls::Sync(file); }
    int Close(int file) override {
        FileCalls::Close(file);
        return Fails() ? -1 : 0;
    }
    int Link(int file, const std::string& path) override {
        errno = EPERM;
        return !links_ || Fails() ? -1 : FileCalls::Link(file, path);
    }
    int Rename(const std::string& from, const std::string& to) override {
        return Fails() ? -1 : FileCalls::Rename(from, to);
    }
    bool HasFailed() const { return failing_ <= 0; }

  private:
    bool Fails() {
        errno = ENOSPC;
        return --failing_ == 0;
    }

    int failing_;
    bool links_;
    bool interrupted_ = false;
};

TEST_F(DiskFilesTest, FailureOfAnyCallLeavesTheOldFileAndNothingElse) {
    const std::pair<std::string, bool> cases[] = {{"", true}, {"old", true}, {"old", false}};
    for (const auto& [old, links] : cases) {
        int fatal = 0;
        bool failed = true;
        for (int failing = 1; failed; ++failing) {
            std::filesystem::remove(Path("a"));
            if (!old.empty()) MakeFile(Path("a"), old);
            chmod(Path("a").c_str(), 0640);
            FailingCalls calls(failing, links);
            const auto saved = DiskFiles(calls).ReplaceFile(Path("a"), Bytes{'n', 'e', 'w'});
            failed = calls.HasFailed();
            EXPECT_EQ(ContentOf(Path("a")), saved ? "new" : old) << failing;
            EXPECT_EQ(Names().size(), !saved && old.empty() ? 0U : 1U) << failing;
            EXPECT_TRUE(saved || saved.error().number == ENOSPC) << failing;
            EXPECT_TRUE(saved || failing > 1) << "a file can do without being unnamed";
            fatal += saved ? 0 : 1;
        }
        // At least two writes of at most two bytes each interrupted once, syncing, closing and
        // renaming; before an old file also taking over its permissions.
        EXPECT_GE(fatal, old.empty() ? 7 : 8);
    }
}

TEST_F(DiskFilesTest, RemovesWhatKilledSavesOfTheFileLeft) {
    const std::string left = ".kestrel-af63dc4c8601ec8c-";  // the FNV-1a hash of "a"
    const auto writer = LockFile(Path(left + "0.tmp"), {});
    for (const char* number : {"1", "7", "8"})
        MakeFile(Path(left + number + ".tmp"), "");
    EXPECT_EQ(ReplaceError(Path("a"), "new"), 0);
    EXPECT_EQ(Names(), (std::set<std::string>{"a", left + "0.tmp"}));
}

TEST_F(DiskFilesTest, ReplacesTheFileThatThePathMeansAndKeepsItsPermissions) {
    MakeFile(Path("Icons/Bird.ico"), "old");
    std::filesystem::create_symlink("Icons/Bird.ico", Path("link"));
    std::filesystem::create_symlink("Icons/made", Path("dangling"));
    chmod(Path("link").c_str(), 0757);
    for (const std::string name : {"Icons/Bird.ico", "link"}) {
        EXPECT_EQ(ReplaceError(Path(name), name), 0);
        EXPECT_EQ(ContentOf(Path("Icons/Bird.ico")), name);
        EXPECT_EQ(ModeOf(Path("link")), 0757U);
    }
    EXPECT_EQ(ReplaceError(Path("Icons/bird.ico"), "other"), 0);
    EXPECT_EQ(ContentOf(Path("link")), "link") << "names are exact";
    const auto saved = files_.ReplaceFile(Path("link"), {});
    EXPECT_EQ(files_.LoadFile(Path("LINK"), 0)->identity, *saved);
    EXPECT_NE(*files_.ReplaceFile(Path("link"), {}), *saved);
    const mode_t before = umask(027);
    EXPECT_EQ(ReplaceError(Path("dangling"), "new"), 0);
    umask(before);
    EXPECT_EQ(ContentOf(Path("Icons/made")), "new");
    EXPECT_EQ(ModeOf(Path("Icons/made")), 0640U);
    EXPECT_EQ(Names(), (std::set<std::string>{"Icons", "dangling", "link"}));
}

TEST_F(DiskFilesTest, RefusesWhatIsNoFileOrTooLarge) {
    MakeFile(Path("Kept"), "old");
    chmod(Path("Kept").c_str(), 0444);
    mkfifo(Path("pipe").c_str(), 0600);
    std::filesystem::create_symlink("loop", Path("loop"));
    std::filesystem::create_symlink("Kept", Path("link"));
    const std::pair<const char*, int> replaced[] = {
        {"Kept", EACCES}, {"link", EACCES},   {"", EISDIR},       {"pipe", EINVAL},
        {"loop", ELOOP},  {"none/a", ENOENT}, {"Kept/a", ENOTDIR}};
    for (const auto& [name, number] : replaced)
        EXPECT_EQ(ReplaceError(Path(name), "new"), number) << name;
    EXPECT_EQ(Names(), (std::set<std::string>{"Kept", "link", "loop", "pipe"}));

    EXPECT_EQ(files_.ReadFile(Path("KEPT"), 3), (Bytes{'o', 'l', 'd'}));
    EXPECT_TRUE(files_.ReadFile("/proc/self/status", 1U << 20U));  // states no size
    const std::pair<std::string, int> read[] = {
        {Path("Kept"), EFBIG}, {Path("pipe"), EINVAL},       {folder_, EISDIR},
        {"/dev/zero", EINVAL}, {"/proc/self/status", EFBIG}, {Path("none"), ENOENT}};
    for (const auto& [path, number] : read)
        EXPECT_EQ(NumberOf(files_.ReadFile(path, 2)), number) << path;
    EXPECT_TRUE(files_.RenameFile(Path("KEPT"), Path("moved")));
    EXPECT_TRUE(files_.RemoveFile(Path("Moved")));
    EXPECT_FALSE(files_.FileExists(Path("moved")));
}

TEST_F(DiskFilesTest, FindsEachComponentAsWrittenOrInOtherLetterCase) {
    for (const char* name : {"Icons/Vögel/Star.ico", "Icons/b.ico", "Icons/B.ico", "icons/only",
                             "odd\\name", "Raw\xFF"})
        MakeFile(Path(name), "");
    std::filesystem::create_symlink("Icons/Vögel", Path("link"));
    const char* cases[][2] = {{"Icons\\VÖGEL\\STAR.ICO", "Icons/Vögel/Star.ico"},
                              {"ICONS/vögel//../vögel/./star.ico", "Icons/Vögel/Star.ico"},
                              {"link/../b.ico", "link/../b.ico"},  // not what it seems to be
                              {"Icons/b.ICO", "Icons/B.ico"},  // of several the first in byte order
                              {"Icons/b.ico", "Icons/b.ico"},  // an exact name before any other
                              {"odd\\name", "odd\\name"},      // a name that really has a backslash
                              {"raw\xFF", "Raw\xFF"}};
    std::filesystem::current_path(folder_);
    for (const auto& [written, found] : cases)
        EXPECT_EQ(files_.LoadFile(written, 0)->path, Path(found));
    // A folder is no file, and an exact one is never left for another.
    for (const char* none : {"Icons", "Icons/only", "none/b.ico"})
        EXPECT_EQ(files_.Find(none), std::nullopt);
    std::filesystem::current_path("/");
    EXPECT_EQ(ResolvePath(Path("ICONS\\new\\Later.ico")), Path("Icons/new/Later.ico"));
    EXPECT_EQ(FolderOf("C:\\Icons/a\\b.ico"), "C:\\Icons/a");
    EXPECT_EQ(FileTitleOf("C:\\Icons\\a/b.ico"), "b.ico");
    EXPECT_EQ(FolderOf("a.ico"), "");
    EXPECT_FALSE(SameName("a\xC3", "a\xE3"));
}

}  // namespace
}  // namespace kestrel::system
