#pragma once

#include <sys/types.h>

#include <cstdint>
#include <mutex>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/FileNames.h"
#include "cli/Report.h"
#include "platform/Result.h"
#include "platform/system/FileCalls.h"

namespace kestrel::cli {

// What the names of a file's results begin with: its own name without folder and ending.
std::string StemOf(std::string_view file);

// The results of a run: files in a folder, which is made where there is none. Each is there whole
// or not at all; one that is there already is replaced, unless it is a file of the run, a link or
// no regular file. Several threads may write.
class Results {
  public:
    // `files`, those of the run, must outlive this object. An empty folder is the current one.
    Results(const NameList& files, std::string folder, bool skipsExisting)
        : files_(files), folder_(std::move(folder)), skipsExisting_(skipsExisting) {}

    std::string PathOf(std::string_view name) const;
    // Whether the result is there already, newer than the file, and may stay.
    bool IsSkipped(const std::string& file, const std::string& result) const;
    // One that is in place of another waits in the report.
    Result<void> Write(const std::string& result, std::span<const std::uint8_t> bytes,
                       Report& report);

    // Once all results of a file are written: its replacements take their places, unless there is
    // but one, for each of them is an open file.
    void EndFile(Report& report);

  private:
    bool IsRead(const struct stat& status);
    void Place(Report& report);
    Result<void> Replace(const std::string& result, const struct stat& status,
                         std::span<const std::uint8_t> bytes, Report& report);
    Result<void> Create(const std::string& result, std::span<const std::uint8_t> bytes);

    const NameList& files_;
    std::string folder_;
    bool skipsExisting_;
    system::FileCalls calls_;
    // Device and number of each file of the run, in order; from the first question on.
    std::vector<std::pair<dev_t, ino_t>> read_;
    std::once_flag listed_;
};

// Whether the result, named by the user, is newer than the file and holds something.
bool IsNewer(const std::string& result, const std::string& file);

}  // namespace kestrel::cli
