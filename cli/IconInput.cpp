#include "cli/IconInput.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
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

std::string InputName(const std::string& name) {
    return name == kStandardStream ? "standard input" : name;
}

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

// At the top left of the icon.
void PastePng(gdi::IconPlanes& icon, const formats::IconImage& png, imaging::PasteFit fit) {
    gdi::Size size{png.info.width, png.info.height};
    if (!imaging::FitsIcon(size)) size = imaging::FittedSize(size, fit);
    const gdi::IconPlanes fitted = gdi::Stretched(png.planes, size.width, size.height);
    for (const auto& [to, from] :
         {std::pair{&icon.image, &fitted.image}, {&icon.mask, &fitted.mask}}) {
        gdi::BitBlt(*to, 0, 0, size.width, size.height, *from, 0, 0, gdi::RasterOp::Copy);
    }
}

}  // namespace

Result<std::vector<std::uint8_t>> ReadInput(const std::string& name) {
    Content bytes = ReadAnything(name);
    if (!bytes) return FailureOf(InputName(name), bytes.error());
    return bytes;
}

Result<gdi::IconPlanes> ReadIcon(const std::string& name, imaging::PasteFit fit) {
    const auto bytes = ReadInput(name);
    if (!bytes) return tl::unexpected(bytes.error());
    const auto image = formats::ReadBestImage(*bytes);
    if (!image) return UnreadableInput(name, image.error());
    if (!formats::IsPng(*bytes))
        return gdi::Stretched(image->planes, gdi::kIconSize, gdi::kIconSize);
    gdi::IconPlanes icon;
    PastePng(icon, *image, fit);
    return icon;
}

tl::unexpected<Error> UnreadableInput(const std::string& name, const Error& error) {
    if (error.number != kInvalidPicture) return FailureOf(InputName(name), error);
    return FailureOf(InputName(name), {error.number, "no icon or PNG that can be read"});
}

}  // namespace kestrel::cli
