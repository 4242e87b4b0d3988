#include <array>
#include <cstdio>
#include <string>

#include "cli/Actions.h"
#include "cli/FileRun.h"
#include "cli/IconInput.h"
#include "cli/Inputs.h"
#include "formats/UnreadableFile.h"
#include "formats/Utf16.h"
#include "platform/system/Characters.h"

namespace kestrel::cli {

namespace {

using formats::ImageEntry;

// What becomes of a character in a JSON text; what is no character of Unicode becomes U+FFFD.
void AppendJson(std::string& json, char32_t character) {
    constexpr char32_t kReplacement = 0xFFFD;
    constexpr char32_t kDelete = 0x7F;
    if (character == '"' || character == '\\') {
        json += '\\';
    } else if (character < ' ' || character == kDelete) {
        std::array<char, sizeof "\\uffff"> escaped{};
        std::snprintf(escaped.data(), escaped.size(), "\\u%04x", static_cast<unsigned>(character));
        json += escaped.data();
        return;
    }
    const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
    const bool isSound = character < system::kPastLastCharacter && !isSurrogate;
    formats::AppendUtf8(json, isSound ? character : kReplacement);
}

std::string JsonText(std::string_view text) {
    std::string json = "\"";
    while (!text.empty())
        AppendJson(json, system::TakeCharacter(text));
    return json + '"';
}

void AppendImageLine(std::string& lines, const ImageEntry& image) {
    const formats::ImageInfo& info = image.info;
    lines.append(std::to_string(image.index + 1)).append(": ").append(std::to_string(info.width));
    lines.append(" x ").append(std::to_string(info.height)).append(", ");
    lines.append(std::to_string(info.bitsPerPixel))
        .append(info.bitsPerPixel == 1 ? " bit" : " bits");
    lines.append(info.png ? ", PNG\n" : ", uncompressed\n");
}

std::string ImageJson(const ImageEntry& image) {
    const formats::ImageInfo& info = image.info;
    return "{\"number\":" + std::to_string(image.index + 1) +
           ",\"width\":" + std::to_string(info.width) +
           ",\"height\":" + std::to_string(info.height) +
           ",\"bits\":" + std::to_string(info.bitsPerPixel) + ",\"compression\":\"" +
           (info.png ? "PNG" : "none") + "\"}";
}

struct IconInfo {
    std::size_t number;
    std::string name;
    std::vector<ImageEntry> images;
};

// Of an icon file only images that can be decoded; it has few.
Result<IconInfo> ReadInfo(const SourceFile& file, std::size_t icon) {
    auto name = file.NameOf(icon);
    if (!name) return tl::unexpected(name.error());
    auto images = file.Images(icon);
    if (images && file.IsOneIcon()) images = file.Named(file.Source().Whole(*std::move(images)));
    if (!images) return tl::unexpected(images.error());
    return IconInfo{icon + 1, *std::move(name), *std::move(images)};
}

// Makes the text of one file: what begins it, one icon, what ends it.
class InfoText {
  public:
    virtual ~InfoText() = default;
    virtual std::string Begin(const SourceFile& file, std::size_t icons) const = 0;
    virtual void AppendIcon(std::string& text, const SourceFile& file,
                            const IconInfo& info) const = 0;
    virtual std::string_view BetweenIcons() const { return {}; }
    virtual std::string End() const = 0;
};

// Of an icon file alone the images are all that is told.
class PlainText : public InfoText {
  public:
    explicit PlainText(bool alone) : alone_(alone) {}

    std::string Begin(const SourceFile& file, std::size_t icons) const override {
        if (file.IsOneIcon() && alone_) return {};
        std::string line = system::Printable(file.Name()) + ": ";
        line += formats::KindName(file.Source().kind);
        if (!file.IsOneIcon())
            line += ", " + std::to_string(icons) + (icons == 1 ? " icon" : " icons");
        return line + "\n";
    }
    void AppendIcon(std::string& text, const SourceFile& file,
                    const IconInfo& info) const override {
        if (!file.IsOneIcon()) {
            text.append("icon ").append(std::to_string(info.number)).append(", name ");
            text.append(system::Printable(info.name)).append("\n");
        }
        for (const ImageEntry& image : info.images)
            AppendImageLine(text, image);
    }
    std::string End() const override { return {}; }

  private:
    bool alone_;
};

class JsonLine : public InfoText {
  public:
    std::string Begin(const SourceFile& file, std::size_t /*icons*/) const override {
        return "{\"file\":" + JsonText(file.Name()) + ",\"kind\":\"" +
               std::string(formats::KindName(file.Source().kind)) + "\",\"icons\":[";
    }
    std::string_view BetweenIcons() const override { return ","; }
    void AppendIcon(std::string& text, const SourceFile& /*file*/,
                    const IconInfo& info) const override {
        text.append("{\"number\":").append(std::to_string(info.number));
        text.append(",\"name\":").append(JsonText(info.name)).append(",\"images\":[");
        for (const ImageEntry& image : info.images)
            text.append(&image == info.images.data() ? "" : ",").append(ImageJson(image));
        text += "]}";
    }
    std::string End() const override { return "]}\n"; }
};

Result<void> AppendInfo(const InputFile& input, const InfoText& form, std::string& text) {
    const auto file = SourceFile::Open(input);
    if (!file) return tl::unexpected(file.error());
    std::string icons;
    std::size_t count = 0;
    for (std::size_t icon = 0; icon < file->Count(); ++icon) {
        const auto info = ReadInfo(*file, icon);
        if (!info) {
            // Of several icons those that cannot be read are left out.
            if (!file->IsOneIcon() && info.error().number == formats::kDamagedPicture) continue;
            return tl::unexpected(info.error());
        }
        if (count++ > 0) icons += form.BetweenIcons();
        form.AppendIcon(icons, *file, *info);
    }
    if (count == 0) return file->Failure({kNoIcons, "none of its icons can be read"});
    text.append(form.Begin(*file, count)).append(icons).append(form.End());
    return {};
}

}  // namespace

Result<void> Info(const Arguments& arguments) {
    const auto options = ReadRunOptions(arguments);
    if (!options) return tl::unexpected(options.error());
    const auto names = OpenNames(arguments);
    if (!names) return tl::unexpected(names.error());
    const PlainText plain((*names)->Count() == 1);
    const JsonLine json;
    const InfoText& form =
        arguments.json ? static_cast<const InfoText&>(json) : static_cast<const InfoText&>(plain);
    return RunFiles(**names, *options, [&](const InputFile& file, Report& report) {
        return AppendInfo(file, form, report.output);
    });
}

}  // namespace kestrel::cli
