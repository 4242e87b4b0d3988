#include "cli/Results.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <tuple>

#include "cli/Streams.h"
#include "platform/system/FileIdentity.h"
#include "platform/system/JointFlush.h"
#include "platform/system/Replacement.h"
#include "platform/system/SystemError.h"

namespace kestrel::cli {

namespace {

std::pair<dev_t, ino_t> NumberOf(const struct stat& status) {
    return {status.st_dev, status.st_ino};
}

Result<void> MakeFolder(const std::string& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (!error) return {};
    return FailureOf(folder, {error.value(), error.message()});
}

}  // namespace

std::string StemOf(std::string_view file) {
    if (file == kStandardStream) return "icon";
    return std::filesystem::path(file).stem().string();
}

bool IsNewer(const std::string& result, const std::string& file) {
    struct stat own {};
    struct stat other {};
    if (stat(result.c_str(), &own) < 0 || stat(file.c_str(), &other) < 0) return false;
    // No result is empty; what a power cut left may be.
    if (!S_ISREG(own.st_mode) || own.st_size == 0) return false;
    return std::tie(own.st_mtim.tv_sec, own.st_mtim.tv_nsec) >
           std::tie(other.st_mtim.tv_sec, other.st_mtim.tv_nsec);
}

std::string Results::PathOf(std::string_view name) const {
    std::string path = folder_;
    if (!path.empty() && path.back() != '/') path += '/';
    return path.append(name);
}

bool Results::IsSkipped(const std::string& file, const std::string& result) const {
    return skipsExisting_ && IsNewer(result, file);
}

Result<void> Results::Write(const std::string& result, std::span<const std::uint8_t> bytes,
                            Report& report) {
    struct stat status {};
    if (lstat(result.c_str(), &status) == 0) return Replace(result, status, bytes, report);
    Result<void> created = Create(result, bytes);
    if (!created && created.error().number == ENOENT && !folder_.empty()) {
        if (auto made = MakeFolder(folder_); !made) return made;
        created = Create(result, bytes);
    }
    return created;
}

Result<void> Results::Create(const std::string& result, std::span<const std::uint8_t> bytes) {
    const Result<void> created = system::CreateFile(calls_, result, bytes);
    if (created) return {};
    return FailureOf(result, created.error());
}

Result<void> Results::Replace(const std::string& result, const struct stat& status,
                              std::span<const std::uint8_t> bytes, Report& report) {
    if (S_ISLNK(status.st_mode)) return FailureOf(result, {EEXIST, "it is a link"});
    if (IsRead(status)) return FailureOf(result, {EINVAL, "it is one of the files to read"});
    auto replacement = system::Replacement::Write(calls_, result, bytes);
    if (!replacement) return FailureOf(result, replacement.error());
    report.replacements.push_back(*std::move(replacement));
    // Each is an open file, and one program can have thousands of icons.
    constexpr std::size_t kMostOfOneFile = 16;
    if (report.replacements.size() == kMostOfOneFile) Place(report);
    return {};
}

void Results::Place(Report& report) {
    system::JointFlush flush(calls_);
    PlaceReplacements({&report, 1}, flush);
}

void Results::EndFile(Report& report) {
    if (report.replacements.size() > 1) Place(report);
}

bool Results::IsRead(const struct stat& status) {
    std::call_once(listed_, [this] {
        for (std::size_t i = 0; i < files_.Size(); ++i) {
            struct stat file {};
            if (stat(std::string(files_[i]).c_str(), &file) == 0) read_.push_back(NumberOf(file));
        }
        std::ranges::sort(read_);
    });
    return std::ranges::binary_search(read_, NumberOf(status));
}

}  // namespace kestrel::cli
