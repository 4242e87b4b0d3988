#include "cli/IconInput.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <span>
#include <utility>

#include "cli/Streams.h"
#include "formats/IconFile.h"
#include "formats/PngImage.h"
#include "platform/gdi/Blit.h"
#include "platform/system/DiskFiles.h"
#include "platform/system/SystemError.h"

namespace kestrel::cli {

namespace {

using system::SystemFailure;
using Content = Result<std::vector<std::uint8_t>>;

constexpr std::size_t kLimit = formats::kMaxIconFileBytes;

// Pipes and devices have no size and are read as they come.
bool IsStream(const std::string& name) {
    struct stat status {};
    return stat(name.c_str(), &status) == 0 && !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode);
}

Content ReadNamedStream(const std::string& name) {
    const int file =
        system::Retry([&] { return open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY); });
    if (file < 0) return SystemFailure(errno);
    Content bytes = ReadStream(file, kLimit);
    close(file);
    return bytes;
}

Content ReadAnything(const std::string& name) {
    if (name == kStandardStream) return ReadStream(STDIN_FILENO, kLimit);
    if (IsStream(name)) return ReadNamedStream(name);
    return system::DiskFiles(system::PathNames::AsWritten).ReadFile(name, kLimit);
}

// The size in which the image of a file is read: that of an icon, or what Paste makes of a PNG.
gdi::Size WantedSize(std::span<const std::uint8_t> file, imaging::PasteFit fit) {
    const auto png = formats::ReadPngHeader(file);
    if (!png) return {gdi::kIconSize, gdi::kIconSize};
    const gdi::Size size{png->width, png->height};
    return imaging::FitsIcon(size) ? size : imaging::FittedSize(size, fit);
}

}  // namespace

Result<std::vector<std::uint8_t>> ReadInput(const std::string& name) {
    Content bytes = ReadAnything(name);
    if (!bytes) return InputFailure(name, bytes.error());
    return bytes;
}

Result<gdi::IconPlanes> ReadIcon(const std::string& name, imaging::PasteFit fit) {
    const auto bytes = ReadInput(name);
    if (!bytes) return tl::unexpected(bytes.error());
    const gdi::Size size = WantedSize(*bytes, fit);
    const auto image = formats::ReadBestImage(*bytes, size);
    if (!image) return InputFailure(name, image.error());
    gdi::IconPlanes icon;
    for (const auto& [to, from] :
         {std::pair{&icon.image, &image->planes.image}, {&icon.mask, &image->planes.mask}}) {
        gdi::BitBlt(*to, 0, 0, size.width, size.height, *from, 0, 0, gdi::RasterOp::Copy);
    }
    return icon;
}

tl::unexpected<Error> InputFailure(const std::string& name, const Error& error) {
    return FailureOf(name == kStandardStream ? "standard input" : name, error);
}

}  // namespace kestrel::cli
