#include <algorithm>
#include <cerrno>
#include <numeric>
#include <string>
#include <vector>

#include "cli/Actions.h"
#include "cli/FileRun.h"
#include "cli/IconInput.h"
#include "cli/Inputs.h"
#include "cli/Results.h"
#include "cli/Streams.h"
#include "formats/IconExport.h"
#include "formats/IconPixels.h"

namespace kestrel::cli {

namespace {

using formats::ImageEntry;
using Bytes = Result<std::vector<std::uint8_t>>;

Result<std::vector<std::size_t>> ChosenIcons(const SourceFile& file,
                                             const std::vector<std::string>& numbers) {
    std::vector<std::size_t> icons;
    for (const std::string& number : numbers) {
        const auto icon = file.Numbered(number);
        if (!icon) return tl::unexpected(icon.error());
        if (std::ranges::find(icons, *icon) == icons.end()) icons.push_back(*icon);
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
    Extraction(const SourceFile& file, Results& results, bool png, Report& report)
        : file_(file),
          results_(results),
          png_(png),
          start_(results.PathOf(StemOf(file.Name()) + "-")),
          report_(report) {}

    Result<void> Write(std::size_t icon) const {
        const auto images = file_.Images(icon);
        if (!images) return tl::unexpected(images.error());
        const std::string name = start_ + std::to_string(icon + 1);
        if (!png_ && std::ranges::any_of(*images, IsTooLarge))
            return FailureOf(name + ".ico", {EINVAL, "an image is too large for an icon: --png"});
        if (!png_) {
            return WriteResult(name + ".ico", [&] {
                return file_.Named(formats::ExportImages(file_.Source(), *images));
            });
        }
        for (const ImageEntry& image : *images) {
            std::string picture = name + "-";
            picture.append(std::to_string(image.index + 1)).append(".png");
            auto written = WriteResult(picture, [&] { return file_.Png(image); });
            if (!written) return written;
        }
        return {};
    }

  private:
    template <class Encode>
    Result<void> WriteResult(const std::string& name, const Encode& encode) const {
        if (results_.IsSkipped(file_.Name(), name)) return {};
        const Bytes bytes = encode();
        if (!bytes) return tl::unexpected(bytes.error());
        return results_.Write(name, *bytes, report_);
    }

    const SourceFile& file_;
    Results& results_;
    bool png_;
    std::string start_;
    Report& report_;
};

Result<void> ExtractFile(const InputFile& input, const Arguments& arguments, Results& results,
                         Report& report) {
    const auto file = SourceFile::Open(input);
    if (!file) return tl::unexpected(file.error());
    const auto icons = ChosenIcons(*file, arguments.icons);
    if (!icons) return tl::unexpected(icons.error());
    const Extraction extraction(*file, results, arguments.png, report);
    // One bad icon does not lose the others.
    for (const std::size_t icon : *icons) {
        const auto written = extraction.Write(icon);
        report.Add(written);
        if (!written && EndsAll(written.error().number)) break;
    }
    results.EndFile(report);
    return {};
}

}  // namespace

Result<void> Extract(const Arguments& arguments) {
    for (const std::string& icon : arguments.icons) {
        if (auto checked = CheckChoice({icon, {}}); !checked) return checked;
    }
    auto inputs = ReadInputs(arguments, StemOf, "its icons would be called as those of");
    if (!inputs) return tl::unexpected(inputs.error());
    Results results(inputs->files, arguments.into, arguments.skipExisting);
    return RunFiles(inputs->files, inputs->options, [&](const InputFile& file, Report& report) {
        return ExtractFile(file, arguments, results, report);
    });
}

}  // namespace kestrel::cli
