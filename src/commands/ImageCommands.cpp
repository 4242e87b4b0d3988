#include "commands/ImageCommands.h"

#include "imaging/Recoloring.h"
#include "platform/gdi/Blit.h"

namespace kestrel::commands {

void ImageCommands::AdjustColors() {
    editor_.Selected().DropSelection();
    imaging::ColorAdjustment colors(editor_.Document());
    if (!dialogs_.AdjustColors(colors, editor_.Views().PicIcon)) return;
    colors.Draw(editor_.Document().PicImage);
    target_.Show();
    target_.Record();
}

void ImageCommands::Buttonize() {
    editor_.Selected().DropSelection();
    imaging::Buttonize(editor_.Document(), loop_);
    target_.Show();
    target_.Record();
}

template <typename Recolor>
void ImageCommands::Change(const Recolor& recolor) {
    recolor(target_.Image(), target_.Mask());
    target_.Show();
    target_.RecordUnlessSelection();
}

void ImageCommands::Grayscale() {
    Change(imaging::Grayscale);
}

void ImageCommands::Invert() {
    Change(imaging::Invert);
}

void ImageCommands::GradientBackground() {
    const std::optional<gdi::Surface> gradient = dialogs_.AskGradient();
    if (!gradient) return;
    editor_.Selected().DropSelection();
    document::IconDocument& icon = editor_.Document();
    gdi::BitBlt(icon.PicImage, 0, 0, document::kIconSize, document::kIconSize, *gradient, 0, 0,
                gdi::RasterOp::Copy);
    gdi::PatBlt(icon.PicMask, icon.PicMask.Bounds(), gdi::kBlack);
    target_.Show();
    target_.Record();
}

}  // namespace kestrel::commands
