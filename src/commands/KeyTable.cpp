#include "commands/KeyTable.h"

#include <array>

#include "commands/CommandCalls.h"
#include "editing/ToolTable.h"
#include "i18n/Captions.h"
#include "i18n/Speech.h"

namespace kestrel::commands {

namespace {

using editing::Button;
using editing::ToolId;

// The tools from the first to the last, one after the other at each press. A tool that is in use
// stays so, without a drop of its selection.
template <ToolId kFirst, ToolId kLast = kFirst>
void Take(Commands& commands, std::string_view /*key*/) {
    editing::ToolPalette& tools = commands.editor.Tools();
    const ToolId current = tools.CurrentTool();
    const bool isBefore = current >= kFirst && current < kLast;
    const ToolId next = isBefore ? static_cast<ToolId>(static_cast<int>(current) + 1) : kFirst;
    if (next != current) tools.SelectTool(next);
}

std::string ToolInHand(Commands& commands) {
    return std::string(editing::RowOf(commands.editor.Tools().CurrentTool()).toolTip.Now());
}

std::string LeftWell(Commands& commands) {
    const editing::ColorWells& wells = commands.editor.Wells();
    return i18n::Named(
        i18n::kForegroundColor.Now(),
        i18n::ColorName(wells.PenColor(Button::Left), wells.IsTransparent(Button::Left)));
}

constexpr bool kAlone = false;
constexpr bool kWithShift = true;

constexpr auto kKeys = std::to_array<KeyRow>({
    {'M', kAlone, Take<ToolId::Selection>, ToolInHand},
    {'B', kAlone, Take<ToolId::Pencil>, ToolInHand},
    {'E', kAlone, Take<ToolId::ColorEraser>, ToolInHand},
    {'I', kAlone, Take<ToolId::ColorPicker>, ToolInHand},
    {'G', kAlone, Take<ToolId::FloodFill>, ToolInHand},
    {'L', kAlone, Take<ToolId::Line>, ToolInHand},
    {'U', kAlone, Take<ToolId::Rectangle, ToolId::FilledRectangle>, ToolInHand},
    {'U', kWithShift, Take<ToolId::Ellipse, ToolId::FilledEllipse>, ToolInHand},
    {'X', kAlone, Call<&WellCommands::ImgInterchangeColor_MouseUp, Button::Left>, LeftWell},
    {'D', kAlone, Call<&WellCommands::ImgDefaultColor_MouseUp, Button::Left>, LeftWell},
});

}  // namespace

std::span<const KeyRow> KeyRows() {
    return kKeys;
}

}  // namespace kestrel::commands
