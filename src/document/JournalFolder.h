#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/system/LockFile.h"

namespace kestrel::document {

// How the names of journals end, and of what is to replace one.
inline constexpr std::string_view kJournalSuffix = ".journal";
inline constexpr std::string_view kUnfinishedSuffix = ".new";

// The journal of a program that runs no more, locked as long as this object lives.
class EndedJournal {
  public:
    EndedJournal(std::string path, system::FileHandle file);

    Result<std::vector<std::uint8_t>> Content() const;
    // When it was written last, in nanoseconds since 1970.
    std::int64_t Time() const { return time_; }

    void Remove();
    // Keeps it under a name that is not looked at, in the place of the one set aside before.
    void SetAside();

  private:
    std::string path_;
    system::FileHandle file_;
    std::int64_t time_ = 0;
};

// Where the journals are.
class JournalFolder {
  public:
    // Empty: there is none.
    explicit JournalFolder(std::string folder) : folder_(std::move(folder)) {}

    // Whether there is a journal, be it that of a running program. Opens none.
    bool HasAny() const;
    // Those of programs that run no more, the newest first.
    std::vector<EndedJournal> Ended() const;

  private:
    std::vector<std::string> Paths() const;

    std::string folder_;
};

}  // namespace kestrel::document
