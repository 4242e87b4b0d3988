#include "tools/TemporaryIcon.h"

#include <cerrno>
#include <chrono>

#include "formats/IcoFile.h"
#include "formats/IconFile.h"
#include "platform/system/LockFile.h"

namespace kestrel::tools {

namespace {

// Writing and reading back takes milliseconds.
constexpr std::chrono::milliseconds kPatience{1000};

Result<gdi::IconPlanes> Decode(std::span<const std::uint8_t> file) {
    auto image = formats::ReadBestImage(file);
    if (!image) return tl::unexpected(image.error());
    return std::move(image->planes);
}

Result<gdi::IconPlanes> WriteAndRead(system::FileSystem& files, const std::string& path,
                                     const gdi::IconPlanes& icon) {
    if (const auto written = formats::WriteIcoCopy(files, icon, path); !written)
        return tl::unexpected(written.error());
    const auto file = files.ReadFile(path, formats::kMaxIconFileBytes);
    if (!file) return tl::unexpected(file.error());
    return Decode(*file);
}

}  // namespace

Result<gdi::IconPlanes> ThroughTemporaryFile(system::FileSystem& files, const std::string& folder,
                                             std::string_view name, const gdi::IconPlanes& icon) {
    if (folder.empty()) return Decode(formats::EncodeIco(icon));
    files.MakeFolder(folder);
    const auto lock = system::LockFolder(folder, kPatience);
    if (!lock && lock.error().number == EWOULDBLOCK) return tl::unexpected(lock.error());
    const std::string path = folder + "/" + std::string(name);
    Result<gdi::IconPlanes> read = WriteAndRead(files, path, icon);
    static_cast<void>(files.RemoveFile(path));
    return read;
}

void RemoveLeftTemporaries(system::FileSystem& files, const std::string& folder) {
    if (folder.empty()) return;
    const auto lock = system::LockFolder(folder, {});
    if (!lock && lock.error().number == EWOULDBLOCK) return;
    for (const std::string_view name : {kPrintedIcon, kPreviewedIcon})
        static_cast<void>(files.RemoveFile(folder + "/" + std::string(name)));
}

}  // namespace kestrel::tools
