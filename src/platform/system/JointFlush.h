#pragma once

#include <cstdint>
#include <map>

#include "platform/Result.h"
#include "platform/system/FileCalls.h"
#include "platform/system/LockFile.h"
#include "platform/system/Replacement.h"

namespace kestrel::system {

// Brings many replacements to the disk with one flush of each file system that they lie on: with a
// flush each, 100,000 small files take an hour.
class JointFlush {
  public:
    explicit JointFlush(FileCalls& calls) : calls_(calls) {}

    // A replacement that the next flush is for.
    void Add(const Replacement& replacement);
    void Flush();
    // What the flush did for one of them. Where its file system could not be asked as a whole, the
    // replacement is flushed alone now.
    Result<void> FlushedOf(Replacement& replacement) const;

  private:
    struct FlushedSystem {
        // A folder, kept open: a flush tells of the failures since its file was opened.
        FileHandle folder;
        Result<void> flushed{};
    };

    FileCalls& calls_;
    std::map<std::uint64_t, FlushedSystem> systems_;  // by device
};

}  // namespace kestrel::system
