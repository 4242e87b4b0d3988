#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>

#include "commands/DocumentCommands.h"
#include "editing/Editor.h"
#include "windows/widgets/SurfaceWidget.h"

namespace kestrel::windows {

// The editing grid in its sunken edge: hands the mouse to the editor and shows what that draws.
class GridPane : public QWidget, public editing::GridView, public commands::GridGuard {
  public:
    explicit GridPane(QWidget* parent);

    // Shows the editor's grid, and hands it the mouse from now on.
    void Show(editing::Editor& editor);
    // Tells the editor again where the pointer is, where it is over the grid.
    void FollowPointer();

    widgets::SurfaceWidget& PicMain() { return picMain_; }

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
    widgets::SurfaceWidget picMain_{this};
    QTimer tmr_;
};

}  // namespace kestrel::windows
