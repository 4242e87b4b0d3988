#include "commands/ClipboardCommands.h"

#include <utility>

namespace kestrel::commands {

namespace {

constexpr gdi::COLORREF kOpaque = 0xFF000000;

// The selection over white, with alpha where it covers the white.
gdi::Surface PictureOf(const editing::Selection& selection) {
    const gdi::Surface& mask = selection.PicSelMask();
    const gdi::Surface& image = selection.PicSelImage();
    gdi::Surface picture(mask.Width(), mask.Height(), gdi::kWhite);
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            const gdi::COLORREF ground = gdi::kWhite & mask.GetPixel(x, y);
            const gdi::COLORREF alpha = ground == gdi::kWhite ? 0 : kOpaque;
            picture.Row(y)[static_cast<std::size_t>(x)] = (ground ^ image.GetPixel(x, y)) | alpha;
        }
    }
    return picture;
}

}  // namespace

void ClipboardCommands::Copy() {
    const editing::Selection& selection = editor_.Selected();
    if (selection.Exists()) clipboard_.SetImage(PictureOf(selection));
}

void ClipboardCommands::Cut() {
    Copy();
    editor_.Selected().Delete();
}

Result<void> ClipboardCommands::Paste(imaging::PasteMode mode) {
    const Result<gdi::SampledPicture> picture = clipboard_.GetImage();
    if (!picture) return tl::unexpected(picture.error());
    gdi::Size size = picture->FullSize();
    if (!imaging::FitsIcon(size)) {
        const auto fit = dialogs_.AskFit(size);
        if (!fit) return Fail(kDialogCancelled, "Cancel was selected");
        size = imaging::FittedSize(size, *fit);
    }
    editor_.FloatSelection(imaging::PlanesOf(picture->In(size), size, mode));
    return {};
}

}  // namespace kestrel::commands
