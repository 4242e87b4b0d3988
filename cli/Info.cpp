#include <array>
#include <cstdio>
#include <string>

#include "cli/Actions.h"
#include "cli/IconOutput.h"
#include "cli/Streams.h"
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

std::string ImageLine(const ImageEntry& image) {
    const formats::ImageInfo& info = image.info;
    std::string line = std::to_string(image.index + 1) + ": " + std::to_string(info.width) + " x ";
    line += std::to_string(info.height) + ", " + std::to_string(info.bitsPerPixel);
    line += info.bitsPerPixel == 1 ? " bit, " : " bits, ";
    return line + (info.png ? "PNG" : "uncompressed") + "\n";
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
    return IconInfo{*std::move(name), *std::move(images)};
}

// Makes the text of one file: what begins it, one icon, what ends it.
class InfoText {
  public:
    virtual ~InfoText() = default;
    virtual std::string Begin(const SourceFile& file) const = 0;
    virtual std::string Icon(const SourceFile& file, std::size_t icon,
                             const IconInfo& info) const = 0;
    virtual std::string End() const = 0;
};

// Of an icon file alone the images are all that is told.
class PlainText : public InfoText {
  public:
    explicit PlainText(bool alone) : alone_(alone) {}

    std::string Begin(const SourceFile& file) const override {
        if (file.IsOneIcon() && alone_) return {};
        std::string line = system::Printable(file.Name()) + ": ";
        line += formats::KindName(file.Source().kind);
        if (!file.IsOneIcon())
            line += ", " + std::to_string(file.Count()) + (file.Count() == 1 ? " icon" : " icons");
        return line + "\n";
    }
    std::string Icon(const SourceFile& file, std::size_t icon,
                     const IconInfo& info) const override {
        std::string lines;
        if (!file.IsOneIcon()) {
            lines = "icon " + std::to_string(icon + 1) + ", name ";
            lines += system::Printable(info.name) + "\n";
        }
        for (const ImageEntry& image : info.images)
            lines += ImageLine(image);
        return lines;
    }
    std::string End() const override { return {}; }

  private:
    bool alone_;
};

class JsonLine : public InfoText {
  public:
    std::string Begin(const SourceFile& file) const override {
        return "{\"file\":" + JsonText(file.Name()) + ",\"kind\":\"" +
               std::string(formats::KindName(file.Source().kind)) + "\",\"icons\":[";
    }
    std::string Icon(const SourceFile& /*file*/, std::size_t icon,
                     const IconInfo& info) const override {
        std::string json = icon == 0 ? "" : ",";
        json += "{\"number\":" + std::to_string(icon + 1) + ",\"name\":" + JsonText(info.name);
        json += ",\"images\":[";
        for (const ImageEntry& image : info.images)
            json += (&image == info.images.data() ? "" : ",") + ImageJson(image);
        return json + "]}";
    }
    std::string End() const override { return "]}\n"; }
};

Result<void> AppendInfo(const std::string& name, const InfoText& form, std::string& text) {
    const auto file = SourceFile::Open(name);
    if (!file) return tl::unexpected(file.error());
    text += form.Begin(*file);
    for (std::size_t icon = 0; icon < file->Count(); ++icon) {
        const auto info = ReadInfo(*file, icon);
        if (!info) return tl::unexpected(info.error());
        text += form.Icon(*file, icon, *info);
    }
    text += form.End();
    return {};
}

}  // namespace

Result<void> Info(const Arguments& arguments) {
    const PlainText plain(arguments.files.size() == 1);
    const JsonLine json;
    const InfoText& form =
        arguments.json ? static_cast<const InfoText&>(json) : static_cast<const InfoText&>(plain);
    std::string all;
    Result<void> read = ForEachFile(arguments.files, [&](const std::string& file) {
        const std::size_t before = all.size();
        Result<void> done = AppendInfo(file, form, all);
        if (!done) all.resize(before);
        return done;
    });
    if (all.empty()) return read;
    Result<void> written = WriteText(std::string(kStandardStream), all);
    if (written) return read;
    if (!read) Complain(read.error().description);
    return written;
}

}  // namespace kestrel::cli
