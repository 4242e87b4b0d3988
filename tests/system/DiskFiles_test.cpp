#include "platform/system/DiskFiles.h"

#include <fcntl.h>
#include <sys/resource.h>

#include <csignal>
#include <map>
#include <random>

#include "tests/system/TemporaryFolder.h"

namespace kestrel::system {
namespace {

using Bytes = std::vector<std::uint8_t>;
using CallNames = std::vector<std::string>;

constexpr std::size_t kLimit = 1000;

Bytes BytesOf(const std::string& text) {
    return {text.begin(), text.end()};
}

class DiskFilesTest : public TemporaryFolder {
  protected:
    int ReplaceError(const std::string& path, const std::string& text) {
        const Result<void> replaced = files_.ReplaceFile(path, BytesOf(text));
        return replaced ? 0 : replaced.error().number;
    }

    int ReadError(const std::string& path, std::size_t limit) {
        const auto read = files_.ReadFile(path, limit);
        return read ? 0 : read.error().number;
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
        if (interrupted_) errno = EINTR;
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
        if (old.empty()) {
            std::filesystem::remove(path);
        } else {
            MakeFile(path, old);
        }
        FailingCalls calls(failing);
        const Result<void> saved = DiskFiles(calls).ReplaceFile(path, BytesOf("new"));
        EXPECT_EQ(ContentOf(path), saved ? "new" : old) << calls.failed;
        const auto left = std::distance(std::filesystem::directory_iterator(folder), {});
        EXPECT_EQ(left, !saved && old.empty() ? 0 : 1) << calls.failed;
        if (calls.failed.empty()) return fatal;
        if (saved) continue;
        fatal.push_back(calls.failed);
        EXPECT_EQ(saved.error().number, ENOSPC);
        EXPECT_EQ(saved.error().description, "No space left on device");
    }
}

TEST_F(DiskFilesTest, FailureOfAnyCallLeavesTheOldFileAndNothingElse) {
    // "new" takes three writes of two bytes, each interrupted once.
    EXPECT_EQ(FatalCalls(folder_, Path("a"), ""),
              (CallNames{"open", "write", "write", "write", "write", "sync", "close", "rename"}));
    MakeFile(Path("a"), "old");
    chmod(Path("a").c_str(), 0640);
    EXPECT_EQ(
        FatalCalls(folder_, Path("a"), "old"),
        (CallNames{"open", "write", "write", "write", "write", "mode", "sync", "close", "rename"}));
}

TEST_F(DiskFilesTest, FileSizeLimitLeavesTheOldFile) {
    MakeFile(Path("a"), "old");
    const int error = InOtherProcess([&] {
        const rlimit limit{1000, 1000};
        setrlimit(RLIMIT_FSIZE, &limit);
        signal(SIGXFSZ, SIG_IGN);
        return ReplaceError(Path("a"), std::string(3262, 'x'));
    });
    EXPECT_EQ(error, EFBIG);
    EXPECT_EQ(ContentOf(Path("a")), "old");
    EXPECT_EQ(Names(), std::vector<std::string>{"a"});
}

TEST_F(DiskFilesTest, ReplacesTheFileThatThePathMeans) {
    std::filesystem::create_directory(Path("Icons"));
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
    EXPECT_EQ(ReplaceError(Path("new"), "x"), 0);
    EXPECT_EQ(ModeOf(Path("new")), 0640U);
    const uid_t owner = geteuid() == 0 ? 1234 : geteuid();
    EXPECT_EQ(chown(Path("new").c_str(), owner, getegid()), 0);
    for (const mode_t mode : {0666U, 0755U, 0200U}) {
        chmod(Path("new").c_str(), mode);
        EXPECT_EQ(ReplaceError(Path("new"), "y"), 0);
        EXPECT_EQ(ModeOf(Path("new")), mode);
    }
    struct stat status {};
    stat(Path("new").c_str(), &status);
    EXPECT_EQ(status.st_uid, owner);
    umask(before);
}

TEST_F(DiskFilesTest, RefusesWhatIsNoWritableFile) {
    MakeFile(Path("kept"), "old");
    chmod(Path("kept").c_str(), 0444);
    mkfifo(Path("pipe").c_str(), 0600);
    std::filesystem::create_symlink("loop", Path("loop"));
    std::filesystem::create_symlink("kept", Path("link"));
    const auto before = Names();
    const std::map<std::string, int> cases = {
        {Path("kept"), EACCES},    {Path("link"), EACCES},  {folder_, EISDIR},
        {Path("pipe"), EINVAL},    {Path("loop"), ELOOP},   {Path("none/a"), ENOENT},
        {Path("kept/a"), ENOTDIR}, {Path("none/"), ENOENT}, {"", ENOENT}};
    for (const auto& [path, number] : cases) {
        EXPECT_EQ(ReplaceError(path, "new"), number) << path;
    }
    EXPECT_EQ(ContentOf(Path("kept")), "old");
    EXPECT_EQ(Names(), before);
}

TEST_F(DiskFilesTest, ReadsRegularFilesUpToTheLimit) {
    MakeFile(Path("Full.ico"), std::string(kLimit, 'x'));
    mkfifo(Path("pipe").c_str(), 0600);
    EXPECT_EQ(files_.ReadFile(Path("FULL.ICO"), kLimit), Bytes(kLimit, 'x'));
    const std::tuple<std::string, std::size_t, int> cases[] = {
        {Path("Full.ico"), kLimit - 1, EFBIG},
        {Path("pipe"), kLimit, EINVAL},
        {folder_, kLimit, EISDIR},
        {"/dev/zero", kLimit, EINVAL},
        {"/proc/self/status", 10, EFBIG},
        {"/proc/self/status", 1U << 20U, 0}};
    for (const auto& [path, limit, number] : cases) {
        EXPECT_EQ(ReadError(path, limit), number) << path;
    }
    EXPECT_FALSE(files_.FileExists(folder_));
    EXPECT_TRUE(files_.RemoveFile(Path("full.ico")).has_value());
    EXPECT_FALSE(files_.FileExists(Path("Full.ico")));
    EXPECT_EQ(ReadError(Path("Full.ico"), kLimit), ENOENT);
}

// Starts the saving program and returns when it has begun.
pid_t StartSaving(const std::string& path) {
    int ready[2];
    EXPECT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        dup2(ready[1], STDOUT_FILENO);
        execl(SAVE_LOOP, "save_loop", path.c_str(), nullptr);
        _exit(127);
    }
    close(ready[1]);
    char byte = 0;
    EXPECT_EQ(read(ready[0], &byte, 1), 1) << "the saving program did not start";
    close(ready[0]);
    return child;
}

TEST_F(DiskFilesTest, KilledSavesLeaveOldOrNew) {
    const std::string contents[] = {std::string(3262, '\x11'), std::string(3262, '\xEE')};
    MakeFile(Path("a.ico"), contents[0]);
    std::mt19937 random(std::random_device{}());
    std::uniform_int_distribution<useconds_t> delay(500, 15000);
    int seen[2] = {0, 0};
    for (int kill = 0; kill < 60; ++kill) {
        const pid_t child = StartSaving(Path("a.ico"));
        usleep(delay(random));
        ::kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const std::string content = ContentOf(Path("a.ico"));
        const bool isNew = content == contents[1];
        ASSERT_TRUE(isNew || content == contents[0]) << content.size() << " bytes";
        ++seen[isNew ? 1 : 0];
        for (const std::string& name : Names()) {
            if (name != "a.ico") std::filesystem::remove(Path(name));
        }
    }
    EXPECT_GT(seen[0], 0);
    EXPECT_GT(seen[1], 0);
}

}  // namespace
}  // namespace kestrel::system
