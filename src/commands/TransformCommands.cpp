#include "commands/TransformCommands.h"

namespace kestrel::imaging {

void TransformCommands::mnuMirrorOpts_Click(int index) {
    if (index < 0 || index > static_cast<int>(Reflection::BottomIntoTop)) return;
    const auto reflection = static_cast<Reflection>(index);
    Mirror(target_.Image(), reflection);
    Mirror(target_.Mask(), reflection);
    target_.Show();
    target_.Record();
}

void TransformCommands::mnuRotateOpts_Click(int index) {
    switch (index) {
        case 0:
            return Rotate(Turn::Left);
        case 1:
            return Rotate(Turn::Right);
        case 3:
            return FlipPlanes(FlipAxis::Horizontal);
        case 4:
            return FlipPlanes(FlipAxis::Vertical);
        default:
            return;
    }
}

void TransformCommands::Rotate(Turn turn) {
    editing::Selection& selection = editor_.Selected();
    if (!selection.Exists()) {
        document::IconDocument& icon = editor_.Document();
        icon.PicMask = Rotated(icon.PicMask, turn);
        icon.PicImage = Rotated(icon.PicImage, turn);
        target_.Show();
        return target_.Record();
    }
    // It may come to lie over other cells than those it was marked in.
    if (selection.SelectionMarked()) selection.LiftSelection();
    selection.ReplacePlanes(Rotated(selection.PicSelMask, turn),
                            Rotated(selection.PicSelImage, turn));
}

void TransformCommands::FlipPlanes(FlipAxis axis) {
    Flip(target_.Image(), axis);
    Flip(target_.Mask(), axis);
    target_.Show();
    target_.RecordUnlessSelection();
}

}  // namespace kestrel::imaging
