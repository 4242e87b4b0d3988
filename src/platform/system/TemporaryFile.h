#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "platform/system/FileCalls.h"
#include "platform/system/FileIdentity.h"

namespace kestrel::system {

// A new file that is to replace another one, and is gone again unless it came to do so. As long as
// it lives it is locked (flock), which tells it from what a killed process left. Every step returns
// 0 or the errno value of its failure.
class TemporaryFile {
  public:
    // `target` is the path of the file that is to be replaced, not of a link to it.
    TemporaryFile(FileCalls& calls, std::string target);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    // Makes a file without a name in the target's folder, where the file system can do that.
    // `mode` is narrowed by the process's umask.
    int CreateUnnamed(mode_t mode);
    // Makes a hidden file beside the target, in place of one made before.
    int CreateNamed(mode_t mode);
    int Write(std::span<const std::uint8_t> bytes);
    // What was written to a file without a name.
    int ReadBack(std::vector<std::uint8_t>& bytes);
    // Takes over the old file's owner where the system allows it, and its permissions.
    int Inherit(const struct stat& old);
    // Brings the content to the disk.
    int Finish();
    // Gives an unnamed file a hidden name beside the target.
    int GiveName();
    // Gives the file the target's name.
    int ReplaceTarget();
    // The same, and EEXIST where something has that name already. Of a file with a hidden name this
    // is looked at just before.
    int BecomeTarget();
    // That the new name reaches the disk is tried, not asserted: the new content is in place.
    void FlushFolder();
    FileIdentity Identity() const;

  private:
    int TryNames(const std::function<int(const std::string& path)>& use);
    void Discard();

    FileCalls& calls_;
    std::string target_;
    std::string path_;  // empty while the file has no name of its own
    int file_ = -1;
};

// Removes the hidden files beside the target that killed processes left when they were about to
// replace it.
void RemoveLeftovers(FileCalls& calls, const std::string& target);

}  // namespace kestrel::system
