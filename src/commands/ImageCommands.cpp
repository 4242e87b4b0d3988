#include "commands/ImageCommands.h"

#include "platform/gdi/Blit.h"

namespace kestrel::commands {

using editing::Leaves;

void ImageCommands::Operate(std::string_view key) {
    const imaging::Operation* operation = imaging::FindOperation(key);
    if (operation == nullptr) return;
    const std::optional<int> value = ValueOf(*operation);
    const Leaves leaves = Prepare(operation->onSelection);
    editing::TargetEdit edit = editor_.EditTarget(leaves);
    // Cancelled, or with a filter under way, the command still leaves its entry.
    if (value) imaging::RunOperation(*operation, *value, edit.Planes(), filters_);
}

std::optional<int> ImageCommands::ValueOf(const imaging::Operation& operation) {
    if (!operation.TakesValue()) return 0;
    const std::optional<int> gamma = dialogs_.AskGamma();
    // There is no gamma factor of 0.
    return gamma == 0 ? std::nullopt : gamma;
}

// Brings the selection into the state that the operation wants.
Leaves ImageCommands::Prepare(imaging::OnSelection rule) {
    editing::Selection& selection = editor_.Selected();
    switch (rule) {
        case imaging::OnSelection::Recorded:
            return Leaves::Entry;
        case imaging::OnSelection::Unrecorded:
            return Leaves::NoEntry;
        case imaging::OnSelection::Lifted:
            if (selection.SelectionMarked()) selection.LiftSelection();
            return Leaves::NoEntry;
        case imaging::OnSelection::PutDown:
            selection.DropSelection();
            return Leaves::Entry;
    }
    return Leaves::Entry;
}

gdi::Rect ImageCommands::Target() const {
    const editing::Selection& selection = editor_.Selected();
    return selection.Exists() ? selection.PicSelMask().Bounds()
                              : editor_.Document().Planes().Bounds();
}

void ImageCommands::AdjustColors() {
    editor_.Selected().DropSelection();
    imaging::ColorAdjustment colors(editor_.Document().Planes());
    if (!dialogs_.AdjustColors(colors, editor_.Views().PicIcon)) return;
    colors.Draw(editor_.EditIcon(Leaves::Entry).Planes().image);
}

void ImageCommands::GradientBackground() {
    const std::optional<gdi::Surface> gradient = dialogs_.AskGradient();
    if (!gradient) return;
    editor_.Selected().DropSelection();
    editing::IconEdit edit = editor_.EditIcon(Leaves::Entry);
    edit.Planes().image = *gradient;
    gdi::PatBlt(edit.Planes().mask, edit.Planes().Bounds(), gdi::kBlack);
}

}  // namespace kestrel::commands
