#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <optional>
#include <string_view>

#include "commands/DocumentCommands.h"
#include "editing/CellCursor.h"
#include "editing/Editor.h"
#include "windows/NamedControls.h"
#include "windows/widgets/CellSurface.h"

namespace kestrel::windows {

// The editing grid in its sunken edge: hands mouse and keys to the editor and shows what that
// draws.
class GridPane : public QWidget, public editing::GridView, public commands::GridGuard {
  public:
    explicit GridPane(QWidget* parent);

    // Shows the editor's grid, and hands it mouse and keys from now on.
    void Show(editing::Editor& editor);
    void AddTo(NamedControls& controls) { controls.AddName(picMain_); }
    // Tells the editor again where the keyboard's mark is or, without one, the pointer, where that
    // is over the grid.
    void FollowPointer();
    // Says this to whoever listens there, and after it the marked cell.
    void Say(std::string_view text);
    // Where a pop-up belongs, on the screen.
    QPoint PopupPoint() const;

    widgets::CellSurface& PicMain() { return picMain_; }

    // The editing pop-up is asked for.
    std::function<void()> onPopup;

    void RepaintGrid(gdi::Rect area) override { picMain_.Repaint(area); }
    void SetGridCursor(editing::GridCursor cursor) override;
    void ShowEditingPopup() override;
    void EnableGrid(bool enabled) override;
    void StartTmr() override { tmr_.start(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void TakeMouse(editing::Editor& editor);
    void TakeKeys(editing::Editor& editor);

    widgets::CellSurface picMain_;
    std::optional<editing::CellCursor> cursor_;
    // What is said before the cell, until the keyboard moves on.
    QString said_;
    QTimer tmr_;
};

}  // namespace kestrel::windows
