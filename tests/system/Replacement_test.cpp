#include "platform/system/Replacement.h"

#include <fcntl.h>

#include <cerrno>
#include <string>
#include <vector>

#include "platform/system/JointFlush.h"
#include "tests/system/TemporaryFolder.h"

namespace kestrel::system {
namespace {

using Bytes = std::vector<std::uint8_t>;

// Notes the flushes, and refuses what it is told to.
class NotingCalls : public FileCalls {
  public:
    int Open(const std::string& path, int flags, mode_t mode) override {
        const bool refused = (!unnamed && (flags & O_TMPFILE) == O_TMPFILE) ||
                             (!folders && flags == (O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        errno = EOPNOTSUPP;
        return refused ? -1 : FileCalls::Open(path, flags, mode);
    }
    ssize_t Write(int file, const void* bytes, std::size_t count) override {
        errno = ENOSPC;
        return full ? -1 : FileCalls::Write(file, bytes, count);
    }
    int Sync(int /*file*/) override { return Note("file "); }
    int SyncFileSystem(int /*file*/) override { return Note("system "); }
    int Rename(const std::string& from, const std::string& to) override {
        notes += "rename ";
        return FileCalls::Rename(from, to);
    }

    bool unnamed = true, folders = true, full = false, broken = false;
    std::string notes;

  private:
    int Note(const char* note) {
        notes += note;
        errno = EIO;
        return broken ? -1 : 0;
    }
};

class ReplacementTest : public TemporaryFolder {
  protected:
    // Replaces "a" and makes "b" with one flush; the first failure's number.
    int ReplaceBoth() {
        MakeFile(Path("a"), "old");
        JointFlush flush(calls_);
        std::vector<std::unique_ptr<Replacement>> replacements;
        for (const char* name : {"a", "b"}) {
            replacements.push_back(*Replacement::Write(calls_, Path(name), Bytes{'n'}));
            flush.Add(*replacements.back());
        }
        flush.Flush();
        for (const auto& replacement : replacements) {
            if (const int error = NumberOf(flush.FlushedOf(*replacement)); error != 0) return error;
            if (const int error = NumberOf(replacement->TakePlace()); error != 0) return error;
        }
        return 0;
    }

    NotingCalls calls_;
};

TEST_F(ReplacementTest, ManyAreFlushedAtOnceBeforeTheFirstTakesItsPlace) {
    EXPECT_EQ(ReplaceBoth(), 0);
    EXPECT_EQ(calls_.notes, "system rename rename ");
    EXPECT_EQ(ContentOf(Path("a")) + ContentOf(Path("b")), "nn");

    // A folder that cannot be opened: each is flushed alone.
    calls_ = {};
    calls_.folders = false;
    EXPECT_EQ(ReplaceBoth(), 0);
    EXPECT_EQ(calls_.notes, "file rename file rename ");

    calls_ = {};
    calls_.broken = true;
    std::filesystem::remove(Path("b"));
    EXPECT_EQ(ReplaceBoth(), EIO);
    EXPECT_EQ(ContentOf(Path("a")), "old");
    EXPECT_EQ(Names(), std::set<std::string>{"a"});
}

TEST_F(ReplacementTest, NoticesThatItsFileWasChanged) {
    for (const char* old : {"", "old"}) {
        if (*old != '\0') MakeFile(Path("a"), old);
        const auto replacement = Replacement::Write(calls_, Path("a"), Bytes{'n'});
        EXPECT_TRUE((*replacement)->FitsTarget());
        MakeFile(Path("a"), "another");
        EXPECT_FALSE((*replacement)->FitsTarget());
    }
}

TEST_F(ReplacementTest, ANewFileIsWholeOrNotThere) {
    for (const bool unnamed : {true, false}) {
        calls_ = {};
        calls_.unnamed = unnamed;
        EXPECT_EQ(NumberOf(CreateFile(calls_, Path("a"), Bytes{'n'})), 0);
        EXPECT_EQ(NumberOf(CreateFile(calls_, Path("a"), Bytes{'m'})), EEXIST);
        calls_.full = true;
        EXPECT_EQ(NumberOf(CreateFile(calls_, Path("b"), Bytes{'n'})), ENOSPC);
        EXPECT_EQ(Names(), std::set<std::string>{"a"});
        EXPECT_EQ(ContentOf(Path("a")), "n");
        std::filesystem::remove(Path("a"));
    }
}

}  // namespace
}  // namespace kestrel::system
