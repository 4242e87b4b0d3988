#include <gtest/gtest.h>

#include <string>

#include "commands/CommandDispatch.h"
#include "commands/MenuTable.h"
#include "commands/ToolbarTable.h"
#include "imaging/filters/FilterTable.h"
#include "tests/support/Recorders.h"

namespace kestrel::commands {
namespace {

// Writes down the handlers that are called, with their argument.
struct RecordingHandlers : CommandHandlers {
    void Note(const std::string& name, int argument) { calls += name + std::to_string(argument); }
    void mnuNew_Click() override { calls += "New"; }
    void mnuOpen_Click() override { calls += "Open"; }
    void mnuSave_Click() override { calls += "Save"; }
    void mnuSaveAs_Click() override { calls += "SaveAs"; }
    void mnuRecent_Click(int slot) override { Note("Recent", slot); }
    void mnuExit_Click() override { calls += "Exit"; }
    void mnuEditOpts_Click(int index) override { Note("Edit", index); }
    void mnuToolsOpts_Click(int index) override { Note("Tools", index); }
    void mnuImage_Click() override { calls += "Image"; }
    void mnuImageOpts_Click(int index) override { Note("Image", index); }
    void mnuMirrorOpts_Click(int index) override { Note("Mirror", index); }
    void mnuRotateOpts_Click(int index) override { Note("Rotate", index); }
    void RunFilterCommand(std::string_view key) override { filters.emplace_back(key); }
    void mnuPaletteOpts_Click(int index) override { Note("Palette", index); }
    void ImgLoadPalette_Click() override { calls += "LoadPalette"; }
    void ImgSavePalette_Click() override { calls += "SavePalette"; }
    void StartSibling(Sibling program) override { Note("Sibling", static_cast<int>(program)); }
    void mnuLanguageOpts_Click(int index) override { Note("Language", index); }
    void mnuHomePage_Click() override { calls += "HomePage"; }
    void mnuHelp_Click() override { calls += "Help"; }
    void mnuAbout_Click() override { calls += "About"; }
    std::string calls;
    std::vector<std::string> filters;
};

TEST(CommandDispatch, EveryKeyCallsItsHandlerAlone) {
    RecordingHandlers handlers;
    test::EditorRecorder window;
    CommandDispatch dispatch(handlers, window);
    // Each key with what it calls; keys that call nothing are left out.
    const auto callsOf = [&](const auto& rows, auto click) {
        std::string calls;
        for (const auto& row : rows) {
            handlers.calls.clear();
            window.refreshes = 0;
            (dispatch.*click)(row.key);
            EXPECT_EQ(window.refreshes, 1) << row.key << " leaves the Edit commands as they were";
            if (handlers.calls.empty()) continue;
            calls += std::string(row.key) + " " + handlers.calls + ", ";
        }
        return calls;
    };
    EXPECT_EQ(callsOf(MenuBarRows(), &CommandDispatch::SmartMenuXP1_Click),
              "mnuNew New, mnuOpen Open, mnuRecentFile1 Recent1, mnuRecentFile2 Recent2, "
              "mnuRecentFile3 Recent3, mnuRecentFile4 Recent4, mnuSave Save, mnuSaveAs SaveAs, "
              "mnuExit Exit, mnuEditOpts0 Edit0, mnuEditOpts1 Edit1, mnuEditOpts3 Edit3, "
              "mnuEditOpts4 Edit4, mnuEditOpts5 Edit5, mnuEditOpts6 Edit6, mnuEditOpts7 Edit7, "
              "mnuEditOpts9 Edit9, mnuToolsOpts1 Tools1, mnuPaletteOpts0 Palette0, "
              "mnuPaletteOpts1 Palette1, mnuPaletteOpts3 LoadPalette, "
              "mnuPaletteOpts4 SavePalette, mnuToolsOpts5 Sibling0, mnuToolsOpts6 Sibling1, "
              "mnuToolsOpts7 Sibling2, mnuImage Image, mnuImageOpts0 Image0, "
              "mnuImageOpts1 Image1, mnuImageOpts2 Image2, mnuImageOpts3 Image3, "
              "mnuMirrorOpts0 Mirror0, mnuMirrorOpts1 Mirror1, mnuMirrorOpts2 Mirror2, "
              "mnuMirrorOpts3 Mirror3, mnuRotateOpts0 Rotate0, mnuRotateOpts1 Rotate1, "
              "mnuRotateOpts3 Rotate3, mnuRotateOpts4 Rotate4, mnuLanguageOpts0 Language0, "
              "mnuLanguageOpts1 Language1, "
              "mnuHomePage HomePage, mnuHelp2 Help, mnuAbout About, ");
    EXPECT_EQ(callsOf(PopupMenuRows(), &CommandDispatch::SmartMenuXP2_Click),
              "mnuPopup2Opts0 Edit3, mnuPopup2Opts1 Edit4, mnuPopup2Opts2 Edit5, "
              "mnuPopup2Opts3 Edit7, mnuPopup2Opts4 Edit9, mnuRotate2Opts0 Rotate0, "
              "mnuRotate2Opts1 Rotate1, mnuFlip2Opts0 Rotate3, mnuFlip2Opts1 Rotate4, ");
    // The filters, in the order of the menu.
    std::vector<std::string> filters;
    for (const auto& item : MenuBarRows())
        if (filters::FindFilter(item.key) != nullptr) filters.emplace_back(item.key);
    EXPECT_EQ(handlers.filters, filters);
    EXPECT_EQ(filters.size(), filters::Filters().size());
    EXPECT_EQ(callsOf(ToolbarButtons(), &CommandDispatch::Toolbar1_ButtonClick),
              "New New, Open Open, Save Save, Undo Edit0, Redo Edit1, Cut Edit3, Copy Edit4, "
              "Paste Edit5, Delete Edit7, Help Help, ");
}

}  // namespace
}  // namespace kestrel::commands
