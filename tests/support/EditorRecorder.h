#pragma once

#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "editing/EditorViews.h"

namespace kestrel::test {

// A program whose pointer and bell are only noted.
class RecordingApplication : public services::Application {
  public:
    void DoEvents() override {
        if (const auto now = std::exchange(onEvents, nullptr)) now();
    }
    void ShowHourglass(bool shown) override { hourglasses += shown ? "on " : "off "; }
    void Beep() override { ++beeps; }
    void Quit() override {}

    // What happens at the next chance.
    std::function<void()> onEvents;
    std::string hourglasses;
    int beeps = 0;
};

// The surroundings of an editor, without a screen: remember what they were told last.
class EditorRecorder : public editing::GridView,
                       public editing::PreviewView,
                       public editing::ToolsView,
                       public editing::ColorsView,
                       public editing::StatusView,
                       public editing::EditorWindow,
                       public editing::EditingLog {
  public:
    editing::EditorViews Views() { return Views(*this); }
    editing::EditorViews Views(editing::EditingLog& log) {
        return {*this, *this, *this, *this, *this, *this, application, log};
    }

    void RepaintGrid(gdi::Rect area) override { repainted.push_back(area); }
    void RepaintPreview(gdi::Rect /*area*/) override {}
    void SetTitle(const std::string& text) override { title = text; }
    void SetStatusPanel(editing::StatusPanel panel, std::string_view text) override {
        panels[static_cast<int>(panel)] = text;
    }
    void PrintReadout(editing::StatusPanel panel, std::string_view text) override {
        printed[static_cast<int>(panel)] = text;
    }
    void SetGridCursor(editing::GridCursor shape) override { cursor = shape; }
    void RepaintTools() override {}
    void SetToolTipOfTools(std::string_view text) override { toolTip = text; }
    void ShowWell(editing::Button button, gdi::COLORREF color, bool transparent) override {
        wells[button] = {color, transparent};
    }
    void RepaintPalette() override {}
    void ShowChkPal(bool /*ticked*/) override {}
    void ShowEditingPopup() override { ++popups; }
    void RefreshEditCommands() override { ++refreshes; }
    void Did(editing::HistoryAct /*act*/, const editing::PictureDifference& /*change*/) override {}
    void HistoryReplaced() override {}
    void StepEnded(const editing::Editor& /*editor*/) override {}
    bool Keeps() const override { return false; }

    // Both wells: hexadecimal colours, T for a transparent one.
    std::string Wells() const {
        std::ostringstream text;
        for (const auto& [button, well] : wells)
            text << std::hex << std::uppercase << well.first << (well.second ? "T " : " ");
        return text.str();
    }

    RecordingApplication application;
    // Areas of the grid.
    std::vector<gdi::Rect> repainted;
    std::string title;
    std::map<int, std::string> panels;
    std::map<int, std::string> printed;
    std::string toolTip;
    editing::GridCursor cursor = editing::GridCursor::Cross;
    // Colour, and whether it is transparent.
    std::map<editing::Button, std::pair<gdi::COLORREF, bool>> wells;
    int popups = 0;
    int refreshes = 0;
};

}  // namespace kestrel::test
