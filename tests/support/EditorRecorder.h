#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "editing/EditorWindow.h"
#include "services/Application.h"

namespace kestrel::test {

// A program whose pointer and bell are only noted.
class RecordingApplication : public services::Application {
  public:
    void DoEvents() override {}
    void ShowHourglass(bool shown) override { hourglasses += shown ? "on " : "off "; }
    void Beep() override { ++beeps; }

    std::string hourglasses;
    int beeps = 0;
};

// The window around an editor, without a screen: remembers what it was told last.
class RecordingEditorWindow : public editing::EditorWindow {
  public:
    void RepaintView(document::View view, gdi::Rect area) override {
        repainted.emplace_back(view, area);
    }
    void SetTitle(const std::string& text) override { title = text; }
    void SetStatusPanel(editing::StatusPanel panel, std::string_view text) override {
        panels[static_cast<int>(panel)] = text;
    }
    void PrintReadout(editing::StatusPanel panel, std::string_view text) override {
        printed[static_cast<int>(panel)] = text;
    }
    void SetGridCursor(editing::GridCursor shape) override { cursor = shape; }
    void RepaintTools() override { ++toolRepaints; }
    void SetToolTipOfTools(std::string_view text) override { toolTip = text; }
    void RepaintWells() override { ++wellRepaints; }
    void PaletteChanged() override {}
    void ShowEditingPopup() override { ++popups; }
    void RefreshEditCommands() override { ++refreshes; }

    std::vector<std::pair<document::View, gdi::Rect>> repainted;
    std::string title;
    std::map<int, std::string> panels;
    std::map<int, std::string> printed;
    std::string toolTip;
    editing::GridCursor cursor = editing::GridCursor::Cross;
    int toolRepaints = 0;
    int wellRepaints = 0;
    int popups = 0;
    int refreshes = 0;
};

}  // namespace kestrel::test
