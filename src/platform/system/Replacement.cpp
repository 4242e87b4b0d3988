#include "platform/system/Replacement.h"

#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/system/SystemError.h"

namespace kestrel::system {
namespace {

constexpr int kMaxLinks = 40;
constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
// A new file is everybody's as far as the umask lets it; a replacement is private until it has
// taken over the old file's permissions.
constexpr mode_t kNewFileMode = 0666;
constexpr mode_t kReplacementMode = 0600;

// 0 or an errno value. The superuser is held to the write bits as well: a file without any was
// meant to be kept.
int RefusalToReplace(const std::string& path, const struct stat& status) {
    if (const int refusal = RefusalOf(status); refusal != 0) return refusal;
    if ((status.st_mode & kAnyWrite) == 0) return EACCES;
    return access(path.c_str(), W_OK) < 0 ? errno : 0;
}

// The place that a chain of links ends at, also when nothing is there yet.
Result<std::string> FollowLinks(std::filesystem::path path) {
    for (int links = 0; links < kMaxLinks; ++links) {
        std::error_code notALink;
        const std::filesystem::path target = std::filesystem::read_symlink(path, notALink);
        if (notALink) return path.string();
        path = path.parent_path() / target;
    }
    return SystemFailure(ELOOP);
}

}  // namespace

Replacement::Replacement(FileCalls& calls, std::string target)
    : target_(std::move(target)), file_(calls, target_) {}

Result<std::unique_ptr<Replacement>> Replacement::Write(FileCalls& calls, const std::string& path,
                                                        std::span<const std::uint8_t> bytes) {
    if (path.empty()) return SystemFailure(ENOENT);
    Result<std::string> target = FollowLinks(path);
    if (!target) return tl::unexpected(target.error());
    std::unique_ptr<Replacement> replacement(new Replacement(calls, *std::move(target)));
    struct stat old {};
    if (stat(replacement->target_.c_str(), &old) == 0) {
        const int refusal = RefusalToReplace(replacement->target_, old);
        if (refusal != 0) return SystemFailure(refusal);
        replacement->old_ = old;
    } else if (errno != ENOENT) {
        return SystemFailure(errno);
    }
    RemoveLeftovers(calls, replacement->target_);
    auto written = replacement->Done(replacement->Create(bytes));
    if (!written) return tl::unexpected(written.error());
    replacement->device_ = written->device;
    return replacement;
}

Result<void> Replacement::Flush() {
    if (const int error = file_.Finish(); error != 0) return SystemFailure(error);
    return {};
}

Result<FileIdentity> Replacement::TakePlace() {
    int error = file_.GiveName();
    if (error != 0) error = WriteAgainNamed();
    if (error == 0) error = file_.ReplaceTarget();
    return Done(error);
}

bool Replacement::FitsTarget() const {
    struct stat now {};
    const bool exists = lstat(target_.c_str(), &now) == 0;
    return exists ? old_ && IdentityOf(now) == IdentityOf(*old_) : !old_;
}

mode_t Replacement::Mode() const {
    return old_ ? kReplacementMode : kNewFileMode;
}

// Not every file system makes files without a name: there the file is named from the start.
int Replacement::Create(std::span<const std::uint8_t> bytes) {
    if (file_.CreateUnnamed(Mode()) == 0) return Fill(bytes);
    const int error = file_.CreateNamed(Mode());
    return error == 0 ? Fill(bytes) : error;
}

int Replacement::Fill(std::span<const std::uint8_t> bytes) {
    const int error = file_.Write(bytes);
    return error == 0 && old_ ? file_.Inherit(*old_) : error;
}

// Without /proc an unnamed file cannot be given a name.
int Replacement::WriteAgainNamed() {
    std::vector<std::uint8_t> bytes;
    int error = file_.ReadBack(bytes);
    if (error == 0) error = file_.CreateNamed(Mode());
    if (error == 0) error = Fill(bytes);
    return error == 0 ? file_.Finish() : error;
}

Result<FileIdentity> Replacement::Done(int error) {
    if (error == EACCES && old_) return Fail(EACCES, "Permission denied in the file's folder");
    if (error != 0) return SystemFailure(error);
    return file_.Identity();
}

Result<void> CreateFile(FileCalls& calls, const std::string& path,
                        std::span<const std::uint8_t> bytes) {
    TemporaryFile file(calls, path);
    int error = file.CreateUnnamed(kNewFileMode);
    if (error == 0) {
        error = file.Write(bytes);
        if (error == 0) error = file.BecomeTarget();
        if (error == 0) return {};
        if (error == EEXIST || error == ENOSPC || error == EDQUOT) return SystemFailure(error);
    }
    error = file.CreateNamed(kNewFileMode);
    if (error == 0) error = file.Write(bytes);
    if (error == 0) error = file.BecomeTarget();
    if (error != 0) return SystemFailure(error);
    return {};
}

}  // namespace kestrel::system
