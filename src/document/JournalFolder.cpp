#include "document/JournalFolder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <utility>

#include "document/JournalRecords.h"
#include "platform/system/DiskFiles.h"

namespace kestrel::document {

namespace {

constexpr std::string_view kSetAside = "discarded";

// Whether the path still leads to this open file.
bool IsAt(const std::string& path, const system::FileHandle& file) {
    struct stat opened {};
    struct stat found {};
    return fstat(file.Number(), &opened) == 0 && lstat(path.c_str(), &found) == 0 &&
           opened.st_dev == found.st_dev && opened.st_ino == found.st_ino;
}

}  // namespace

EndedJournal::EndedJournal(std::string path, system::FileHandle file)
    : path_(std::move(path)), file_(std::move(file)) {
    struct stat status {};
    fstat(file_.Number(), &status);
    time_ = status.st_mtim.tv_sec * std::int64_t{1'000'000'000} + status.st_mtim.tv_nsec;
}

Result<std::vector<std::uint8_t>> EndedJournal::Content() const {
    return system::DiskFiles(system::PathNames::AsWritten).ReadFile(path_, kMostJournalBytes);
}

void EndedJournal::Remove() {
    unlink(path_.c_str());
}

void EndedJournal::SetAside() {
    const auto folder = std::filesystem::path(path_).parent_path();
    rename(path_.c_str(), (folder / kSetAside).c_str());
}

bool JournalFolder::HasAny() const {
    return !Paths().empty();
}

std::vector<EndedJournal> JournalFolder::Ended() const {
    std::vector<EndedJournal> ended;
    for (const std::string& path : Paths()) {
        auto file = system::LockFile(path, std::chrono::milliseconds::zero());
        // A program that shortens its journal may have put another file there meanwhile.
        if (!file || !IsAt(path, *file)) continue;
        if (path.ends_with(kUnfinishedSuffix)) {
            unlink(path.c_str());
        } else {
            ended.emplace_back(path, *std::move(file));
        }
    }
    std::ranges::sort(ended, std::ranges::greater{}, &EndedJournal::Time);
    return ended;
}

std::vector<std::string> JournalFolder::Paths() const {
    std::vector<std::string> paths;
    std::error_code failed;
    for (std::filesystem::directory_iterator at(folder_, failed), end; !failed && at != end;
         at.increment(failed)) {
        std::string path = at->path().string();
        if (path.ends_with(kJournalSuffix) || path.ends_with(kUnfinishedSuffix))
            paths.push_back(std::move(path));
    }
    return paths;
}

}  // namespace kestrel::document
