#include "commands/TransformCommands.h"

namespace kestrel::commands {

void TransformCommands::Mirror(imaging::Reflection reflection) {
    imaging::Mirror(target_.Image(), reflection);
    imaging::Mirror(target_.Mask(), reflection);
    target_.Show();
    target_.Record();
}

void TransformCommands::Rotate(imaging::Turn turn) {
    editing::Selection& selection = editor_.Selected();
    if (!selection.Exists()) {
        document::IconDocument& icon = editor_.Document();
        icon.PicMask = imaging::Rotated(icon.PicMask, turn);
        icon.PicImage = imaging::Rotated(icon.PicImage, turn);
        target_.Show();
        return target_.Record();
    }
    // It may come to lie over other cells than those it was marked in.
    if (selection.SelectionMarked()) selection.LiftSelection();
    selection.ReplacePlanes(imaging::Rotated(selection.PicSelMask, turn),
                            imaging::Rotated(selection.PicSelImage, turn));
}

void TransformCommands::Flip(imaging::FlipAxis axis) {
    imaging::Flip(target_.Image(), axis);
    imaging::Flip(target_.Mask(), axis);
    target_.Show();
    target_.RecordUnlessSelection();
}

}  // namespace kestrel::commands
