#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <map>
#include <numeric>
#include <system_error>
#include <utility>
#include <vector>

#include "cli/Actions.h"
#include "cli/IconOutput.h"
#include "cli/Streams.h"
#include "formats/IconExport.h"
#include "formats/IconPixels.h"

namespace kestrel::cli {

namespace {

using formats::ImageEntry;
using Bytes = Result<std::vector<std::uint8_t>>;

// What the names of a file's results begin with.
std::string StemOf(const std::string& name) {
    if (name == kStandardStream) return "icon";
    return std::filesystem::path(name).stem().string();
}

// Results are called alike only where the files' stems are: all else is numbers.
Result<void> CheckStems(const std::vector<std::string>& files) {
    std::map<std::string, std::string> owners;
    for (const std::string& file : files) {
        const auto [owner, isNew] = owners.try_emplace(StemOf(file), file);
        if (isNew) continue;
        return FailureOf(file, {EINVAL, "its icons would be called as those of " + owner->second});
    }
    return {};
}

Result<void> MakeFolder(const std::string& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (!error) return {};
    return FailureOf(folder, {error.value(), error.message()});
}

Result<std::vector<std::size_t>> ChosenIcons(const SourceFile& file,
                                             const std::vector<std::string>& numbers) {
    std::vector<std::size_t> icons;
    for (const std::string& number : numbers) {
        const auto icon = file.Numbered(number);
        if (!icon) return tl::unexpected(icon.error());
        icons.push_back(*icon);
    }
    if (!icons.empty()) return icons;
    icons.resize(file.Count());
    std::iota(icons.begin(), icons.end(), std::size_t{0});
    return icons;
}

// What no reader of icon files takes.
bool IsTooLarge(const ImageEntry& image) {
    return std::max(image.info.width, image.info.height) > formats::kMaxImageSide;
}

// Whether nothing more can come of a file or a folder after this failure.
bool EndsAll(int error) {
    constexpr int kEnds[] = {kFileChanged, EIO, ENOSPC, EDQUOT, EROFS, EACCES};
    return std::ranges::find(kEnds, error) != std::end(kEnds);
}

// Writes icons of one file, each under a name that begins with `start`.
class Extraction {
  public:
    Extraction(const SourceFile& file, const Arguments& arguments, std::string start)
        : file_(file), arguments_(arguments), start_(std::move(start)) {}

    Result<void> Write(std::size_t icon) const {
        const auto images = file_.Images(icon);
        if (!images) return tl::unexpected(images.error());
        const std::string name = start_ + std::to_string(icon + 1);
        if (!arguments_.png && std::ranges::any_of(*images, IsTooLarge))
            return FailureOf(name + ".ico", {EINVAL, "an image is too large for an icon: --png"});
        if (!arguments_.png)
            return WriteResult(name + ".ico",
                               file_.Named(formats::ExportImages(file_.Source(), *images)));
        for (const ImageEntry& image : *images) {
            std::string picture = name + "-";
            picture.append(std::to_string(image.index + 1)).append(".png");
            auto written = WriteResult(picture, file_.Png(image));
            if (!written) return written;
        }
        return {};
    }

  private:
    Result<void> WriteResult(const std::string& name, const Bytes& bytes) const {
        if (!bytes) return tl::unexpected(bytes.error());
        if (IsRead(name)) return FailureOf(name, {EINVAL, "it is one of the files to read"});
        return WriteNew(name, *bytes);
    }

    // Whether the result would replace another file of this run.
    bool IsRead(const std::string& name) const {
        std::error_code unreachable;
        if (!std::filesystem::exists(name, unreachable)) return false;
        return std::ranges::any_of(arguments_.files, [&](const std::string& file) {
            return std::filesystem::equivalent(name, file, unreachable);
        });
    }

    const SourceFile& file_;
    const Arguments& arguments_;
    std::string start_;
};

Result<void> ExtractFile(const std::string& name, const Arguments& arguments) {
    const auto file = SourceFile::Open(name);
    if (!file) return tl::unexpected(file.error());
    const auto icons = ChosenIcons(*file, arguments.icons);
    if (!icons) return tl::unexpected(icons.error());
    std::string start = StemOf(name) + "-";
    if (!arguments.into.empty()) {
        if (auto made = MakeFolder(arguments.into); !made) return made;
        start.insert(0, arguments.into + "/");
    }
    const Extraction extraction(*file, arguments, start);
    // One bad icon does not lose the others.
    Result<void> all;
    for (const std::size_t icon : *icons) {
        auto written = extraction.Write(icon);
        if (written) continue;
        if (!all) Complain(all.error().description);
        all = tl::unexpected<Error>(written.error());
        if (EndsAll(written.error().number)) break;
    }
    return all;
}

}  // namespace

Result<void> Extract(const Arguments& arguments) {
    if (auto checked = CheckStems(arguments.files); !checked) return checked;
    return ForEachFile(arguments.files,
                       [&](const std::string& file) { return ExtractFile(file, arguments); });
}

}  // namespace kestrel::cli
