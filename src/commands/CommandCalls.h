#pragma once

#include <string_view>
#include <tuple>

#include "commands/Commands.h"
#include "commands/ErrorBox.h"
#include "i18n/Messages.h"

// The functions that rows of the command table name.
namespace kestrel::commands {

template <typename Pointer>
struct ClassOfMember;
template <typename Class, typename Member>
struct ClassOfMember<Member Class::*> {
    using Type = Class;
};

// The one object behind the commands that has this member function.
template <auto kFunction>
auto& ObjectOf(Commands& c) {
    using Class = typename ClassOfMember<decltype(kFunction)>::Type;
    return std::get<Class&>(std::tie(c.editor, c.editor.Selected(), c.parts.window, c.parts.dialogs,
                                     c.palette, c.wells, c.clipboard, c.images, c.documents,
                                     c.extract, c.capture, c.prints, c.shell, c.tray, c.zoom));
}

template <auto kFunction, auto... kArguments>
void Call(Commands& commands, std::string_view /*key*/) {
    (ObjectOf<kFunction>(commands).*kFunction)(kArguments...);
}

template <auto kFunction>
bool Ask(Commands& commands) {
    return (ObjectOf<kFunction>(commands).*kFunction)();
}

// The operation of the row's own key.
inline void Operate(Commands& commands, std::string_view key) {
    commands.images.Operate(key);
}

// The operation of another row, for rows of the pop-up.
template <const char* kKey>
void OperateAs(Commands& commands, std::string_view /*key*/) {
    commands.images.Operate(kKey);
}

template <imaging::PasteMode kMode>
void Paste(Commands& commands, std::string_view /*key*/) {
    const Result<void> pasted = commands.clipboard.Paste(kMode);
    if (!pasted && pasted.error().number != kDialogCancelled) {
        ShowError(commands.boxes, std::string(i18n::kCannotPaste.Now()));
    }
}

template <editing::PaletteKind kKind>
bool IsPalette(Commands& commands) {
    return commands.editor.ColorPalette().Kind() == kKind;
}

template <const std::string_view& kCode>
void SwitchTo(Commands& commands, std::string_view /*key*/) {
    commands.language.SwitchTo(kCode);
}

template <const std::string_view& kCode>
bool Speaks(Commands& /*commands*/) {
    return i18n::UiLanguage() == kCode;
}

// What several rows name.
inline constexpr Action kNew = Call<&DocumentCommands::mnuNew_Click>;
inline constexpr Action kOpen = Call<&DocumentCommands::mnuOpen_Click>;
inline constexpr Action kExtract = Call<&ExtractCommands::mnuExtract_Click>;
inline constexpr Action kSave = Call<&DocumentCommands::mnuSave_Click>;
inline constexpr Action kUndo = Call<&editing::Editor::PopUndoSnapshot>;
inline constexpr Action kRedo = Call<&editing::Editor::PopRedoSnapshot>;
inline constexpr Action kCut = Call<&ClipboardCommands::Cut>;
inline constexpr Action kCopy = Call<&ClipboardCommands::Copy>;
inline constexpr Action kPaste = Paste<imaging::PasteMode::Transparent>;
inline constexpr Action kDelete = Call<&editing::Selection::Delete>;
inline constexpr Action kSelectAll = Call<&editing::Editor::SelectAll>;
inline constexpr Action kCapture = Call<&CaptureCommands::Capture>;
inline constexpr Action kScreenZoom = Call<&ZoomCommands::ShowMagnifier>;
inline constexpr Action kHelp = Call<&ShellCommands::mnuHelp_Click>;

inline constexpr Question kCanUndo = Ask<&editing::Editor::CanUndo>;
inline constexpr Question kCanRedo = Ask<&editing::Editor::CanRedo>;
inline constexpr Question kIsSelected = Ask<&editing::Selection::Exists>;
inline constexpr Question kCanPaste = Ask<&ClipboardCommands::CanPaste>;
inline constexpr Question kEvenWidth = Ask<&ImageCommands::CanMirrorColumns>;
inline constexpr Question kEvenHeight = Ask<&ImageCommands::CanMirrorRows>;

}  // namespace kestrel::commands
