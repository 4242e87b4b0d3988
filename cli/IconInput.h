#pragma once

#include <optional>
#include <string>
#include <vector>

#include "formats/IconSource.h"
#include "imaging/PasteFit.h"
#include "platform/Result.h"
#include "platform/gdi/IconPlanes.h"

namespace kestrel::cli {

// Every failure below begins with the file's name.

// A file to read, as it was named.
struct InputFile {
    std::string name;
    // Among others, a device is refused and no pipe is waited for that no program writes to.
    bool isAmongOthers = false;
};

// A file, a pipe or standard input ("-") that holds icons. An icon, cursor or PNG file is one icon
// with all its images. Icons are counted from 0 here, from 1 by users.
class SourceFile {
  public:
    static Result<SourceFile> Open(const InputFile& input);

    const std::string& Name() const { return name_; }
    const formats::IconSource& Source() const { return source_; }
    bool IsOneIcon() const { return formats::IsOneIcon(source_.kind); }
    std::size_t Count() const { return IsOneIcon() ? 1 : source_.count; }

    // As it is stored; the icon of an icon file is called "1".
    Result<std::string> NameOf(std::size_t icon) const;
    Result<std::vector<formats::ImageEntry>> Images(std::size_t icon) const;
    // The image in its own size; a PNG stays as it is stored.
    Result<std::vector<std::uint8_t>> Png(const formats::ImageEntry& image) const;
    // Where a cursor's hotspot comes to lie when the image fills this place; elsewhere its corner.
    gdi::Point HotspotIn(const formats::ImageEntry& image, gdi::Rect place) const;
    // The icon that a user's number means.
    Result<std::size_t> Numbered(const std::string& number) const;

    tl::unexpected<Error> Failure(const Error& error) const;
    template <class T>
    Result<T> Named(Result<T> result) const {
        if (!result) return Failure(result.error());
        return result;
    }

  private:
    SourceFile(std::string name, formats::IconSource source)
        : name_(std::move(name)), source_(std::move(source)) {}

    std::string name_;
    formats::IconSource source_;
};

// Which icon and image of a file is meant, as it was typed: the first that can be read, and the one
// that suits best, when left out.
struct IconChoice {
    std::optional<std::string> icon;
    std::optional<std::string> image;
};

// Whether numbers were typed.
Result<void> CheckChoice(const IconChoice& choice);

// All images of the icon, or the one that is chosen.
Result<std::vector<formats::ImageEntry>> ChosenImages(const SourceFile& file,
                                                      const IconChoice& choice);

struct OpenedIcon {
    gdi::IconPlanes planes;
    // Of a cursor.
    gdi::Point hotspot;
};

// The icon in a file, as the editor opens it. A PNG, told by its content, is pasted at the top left
// of an empty icon instead: a larger one is fitted, a smaller one leaves the rest transparent.
Result<OpenedIcon> ReadIcon(const SourceFile& file, const IconChoice& choice,
                            imaging::PasteFit fit);

}  // namespace kestrel::cli
