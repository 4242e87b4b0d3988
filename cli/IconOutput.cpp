#include "cli/IconOutput.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <vector>

#include "cli/ExitCodes.h"
#include "cli/Streams.h"
#include "formats/IcoFile.h"
#include "formats/PngWriter.h"
#include "platform/system/DiskFiles.h"
#include "platform/system/LetterCase.h"
#include "platform/system/SystemError.h"

namespace kestrel::cli {

namespace {

using system::SystemFailure;
using ByteList = std::vector<std::uint8_t>;

ByteList IcoBytes(const gdi::IconPlanes& icon, gdi::Point /*hotspot*/) {
    const formats::IcoBytes bytes = formats::EncodeIco(icon);
    return {bytes.begin(), bytes.end()};
}

ByteList CurBytes(const gdi::IconPlanes& icon, gdi::Point hotspot) {
    const formats::IcoBytes bytes = formats::EncodeCur(icon, hotspot);
    return {bytes.begin(), bytes.end()};
}

ByteList PngBytes(const gdi::IconPlanes& icon, gdi::Point /*hotspot*/) {
    return formats::PngBytes(icon);
}

struct Format {
    std::string_view name;
    ByteList (*encode)(const gdi::IconPlanes& icon, gdi::Point hotspot);
};
// The first is that of what has no ending.
constexpr Format kFormats[] = {{"ico", IcoBytes}, {"cur", CurBytes}, {"png", PngBytes}};
constexpr const Format* kNoFormat = std::end(kFormats);

enum class Way { Replace, StandardOutput, Stream };

Way WayTo(const std::string& name) {
    if (name == kStandardStream) return Way::StandardOutput;
    struct stat status {};
    if (lstat(name.c_str(), &status) == 0 && S_ISREG(status.st_mode)) return Way::Replace;
    if (stat(name.c_str(), &status) < 0 || S_ISDIR(status.st_mode)) return Way::Replace;
    struct stat output {};
    if (fstat(STDOUT_FILENO, &output) == 0 && output.st_dev == status.st_dev &&
        output.st_ino == status.st_ino) {
        return Way::StandardOutput;
    }
    return S_ISREG(status.st_mode) ? Way::Replace : Way::Stream;
}

const Format* FindFormat(std::string_view name) {
    return std::find_if(std::begin(kFormats), std::end(kFormats),
                        [&](const Format& format) { return system::SameName(format.name, name); });
}

const Format* WantedFormat(const IconTarget& target) {
    if (!target.format.empty()) return FindFormat(target.format);
    const std::size_t dot = target.name.find_last_of("./");
    if (dot != std::string::npos && target.name[dot] == '.') {
        const Format* format = FindFormat(std::string_view(target.name).substr(dot + 1));
        if (format != kNoFormat) return format;
    }
    return WayTo(target.name) == Way::Replace ? kNoFormat : kFormats;
}

Result<void> WriteAndClose(int file, std::span<const std::uint8_t> bytes) {
    if (file < 0) return SystemFailure(errno);
    Result<void> written = WriteStream(file, bytes);
    if (close(file) < 0 && written && errno != EINTR) written = SystemFailure(errno);
    return written;
}

Result<void> WriteNamedStream(const std::string& name, std::span<const std::uint8_t> bytes) {
    return WriteAndClose(
        system::Retry([&] { return open(name.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY); }), bytes);
}

Result<void> WriteAnywhere(const std::string& name, std::span<const std::uint8_t> bytes) {
    switch (WayTo(name)) {
        case Way::StandardOutput:
            return WriteStream(STDOUT_FILENO, bytes);
        case Way::Stream:
            return WriteNamedStream(name, bytes);
        case Way::Replace:
            break;
    }
    const auto written = system::DiskFiles().ReplaceFile(name, bytes);
    if (!written) return tl::unexpected(written.error());
    return {};
}

}  // namespace

Result<std::string_view> FormatNamed(std::string_view format) {
    const Format* known = FindFormat(format);
    if (known != kNoFormat) return known->name;
    if (format.empty()) return format;
    return WrongUsage("--format is ico, cur or png");
}

std::string_view FormatOf(const IconTarget& target) {
    const Format* format = WantedFormat(target);
    return format == kNoFormat ? "" : format->name;
}

Result<void> CheckTarget(const IconTarget& target) {
    if (!FormatOf(target).empty()) return {};
    return WrongUsage(target.name + ": the name ends in none of .ico, .cur and .png");
}

Result<void> CheckTerminal(const std::string& name, bool forced) {
    if (forced || WayTo(name) != Way::StandardOutput || isatty(STDOUT_FILENO) == 0) return {};
    return WrongUsage("standard output is a terminal; --force writes to it all the same");
}

ByteList EncodeIcon(const IconTarget& target, const gdi::IconPlanes& icon, gdi::Point hotspot) {
    return WantedFormat(target)->encode(icon, hotspot);
}

Result<void> WriteOutput(const std::string& name, std::span<const std::uint8_t> bytes) {
    const Result<void> written = WriteAnywhere(name, bytes);
    if (written) return {};
    return FailureOf(name == kStandardStream ? "standard output" : name, written.error());
}

Result<void> WriteText(const std::string& name, std::string_view text) {
    return WriteOutput(name, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

}  // namespace kestrel::cli
