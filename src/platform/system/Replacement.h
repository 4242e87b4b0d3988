#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "platform/Result.h"
#include "platform/system/FileCalls.h"
#include "platform/system/FileIdentity.h"
#include "platform/system/TemporaryFile.h"

namespace kestrel::system {

// New content for a file, written beside it and ready to take its place; until then the file, or
// its absence, stays as it is. What never takes its place is gone with this object.
class Replacement {
  public:
    // For the file that this path leads to through links, if there is one. A file that may not be
    // written to is refused (EACCES), and so is what is no regular file (EISDIR, EINVAL).
    static Result<std::unique_ptr<Replacement>> Write(FileCalls& calls, const std::string& path,
                                                      std::span<const std::uint8_t> bytes);

    // Brings the content to the disk, without which a power cut could leave neither file. Of many
    // replacements the file systems are flushed at once instead.
    Result<void> Flush();
    Result<FileIdentity> TakePlace();
    // And its name, as far as that can be done.
    void FlushName() { file_.FlushFolder(); }
    // Whether the file is still the one that was there when this was written.
    bool FitsTarget() const;
    const std::string& Target() const { return target_; }
    // The number of the file system that it lies on.
    std::uint64_t Device() const { return device_; }

  private:
    Replacement(FileCalls& calls, std::string target);
    mode_t Mode() const;
    int Create(std::span<const std::uint8_t> bytes);
    int Fill(std::span<const std::uint8_t> bytes);
    int WriteAgainNamed();
    Result<FileIdentity> Done(int error);

    std::string target_;
    std::optional<struct stat> old_;
    std::uint64_t device_ = 0;
    TemporaryFile file_;
};

// Makes a file that is not there yet (EEXIST otherwise): whole or not at all, also when the process
// is killed, but without waiting for the disk.
Result<void> CreateFile(FileCalls& calls, const std::string& path,
                        std::span<const std::uint8_t> bytes);

}  // namespace kestrel::system
