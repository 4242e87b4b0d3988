#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "formats/ByteReader.h"
#include "platform/system/LockFile.h"

namespace kestrel::document {

struct JournalLimits {
    // In bytes: a longer journal is rewritten, to keep so much of the history.
    std::size_t rewriteAbove = std::size_t{64} << 20;
    std::size_t keep = std::size_t{32} << 20;
    // What happens within this time is brought to the disk together.
    std::chrono::milliseconds betweenSyncs{1000};
};

// A journal that is being written, locked as long as this object lives. What was appended outlives
// the process at once; a thread brings it to the disk within a second or so, and rewrites a journal
// that has become too long.
class JournalFile {
  public:
    // A shorter journal of the same state as this one, with no more than so many bytes of history.
    using Shorten =
        std::function<std::vector<std::uint8_t>(formats::Bytes journal, std::size_t keep)>;

    // A new file of the user's alone in this folder, which is made as needed. Null where none can
    // be made or locked.
    static std::unique_ptr<JournalFile> Create(const std::string& folder, JournalLimits limits,
                                               Shorten shorten);
    JournalFile(const JournalFile&) = delete;
    JournalFile& operator=(const JournalFile&) = delete;
    // The file stays.
    ~JournalFile();

    // Whole records, the first time with the head before them. False where they cannot be written:
    // then the journal is as before.
    bool Append(formats::Bytes records);
    void Remove();

  private:
    JournalFile(std::string path, system::FileHandle file, JournalLimits limits, Shorten shorten);

    void KeepOnDisk(const std::stop_token& stop);
    bool Rewrite(std::size_t length, const std::stop_token& stop);

    const std::string path_;
    const JournalLimits limits_;
    const Shorten shorten_;

    // Guards what follows. The thread alone changes the file.
    std::mutex mutex_;
    std::condition_variable_any changes_;
    system::FileHandle file_;
    std::size_t size_ = 0;
    std::size_t rewriteAbove_;
    bool changed_ = false;

    std::jthread thread_;
};

}  // namespace kestrel::document
