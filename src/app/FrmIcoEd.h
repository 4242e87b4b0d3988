#pragma once

#include <QAction>
#include <QLabel>
#include <QMenuBar>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <vector>

#include "app/CommandDispatch.h"
#include "app/DocumentCommands.h"
#include "editing/Editor.h"
#include "platform/qt/QtFileDialogs.h"
#include "platform/qt/QtMessageBoxes.h"
#include "platform/qt/StatusBar.h"
#include "platform/qt/SurfaceWidget.h"
#include "platform/system/FileSystem.h"

namespace kestrel::app {

// What the main window is given; all of it outlives the window.
struct MainWindowServices {
    dialogs::MessageBoxes& boxes;
    dialogs::FileDialogs& cdb;
    system::FileSystem& files;
};

// The main window: lays out, paints and forwards events. Positions are in pixels of the client
// area, which never changes its size.
class FrmIcoEd : public QWidget, private editing::EditorWindow, private DocumentWindow {
  public:
    explicit FrmIcoEd(const MainWindowServices& services);

    // Builds the window up to its idle state, not shown yet, and opens a file; an empty path opens
    // none.
    void Form_Load(const std::string& pathToOpen);

    editing::Editor& OpenEditor() { return editor_; }
    std::string StatusText(editing::StatusPanel panel) const;
    qt::SurfaceWidget& GridWidget() { return *picMain_; }

  protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    bool Form_Unload();
    void Form_OLEDragDrop(const std::string& pathToOpen);
    // Runs a command of the user, unless one is running and waits for a dialog.
    void RunCommand(const std::function<void()>& command);
    void FollowDesktopColors();

    // FrmIcoEd_Layout.cpp
    void LayOutControls();
    void ShowTextControls(bool shown);
    void PlaceOnScreen();
    // FrmIcoEd_Menu.cpp
    void BuildMenuBar();
    void ApplyMenuCaptions();
    void ApplyMainCaptions();
    // FrmIcoEd_Grid.cpp
    void ConnectGrid();
    void ClearStatusPanels();

    void RepaintView(document::View view, gdi::Rect area) override;
    void SetTitle(const std::string& title) override;
    void SetStatusPanel(editing::StatusPanel panel, std::string_view text) override;
    void PrintPointerCell(std::string_view text) override;
    void SetGridCursor(editing::GridCursor cursor) override;
    void RefreshEditCommands() override;

    void EnableGrid(bool enabled) override;
    void StartTmr() override;
    void ShowHourglass(bool shown) override;
    void ProcessPendingEvents() override;
    void Unload() override;

    QMenuBar* menuBar_ = nullptr;
    // By position in the menu table; null for separators.
    std::vector<QAction*> menuActions_;
    qt::SurfaceWidget* picMain_ = nullptr;
    qt::SurfaceWidget* picIcon_ = nullptr;
    QLabel* label1_ = nullptr;
    qt::StatusBar* statusBar_ = nullptr;
    QTimer* tmr_ = nullptr;
    QString pointerCell_;
    bool commandRunning_ = false;

    // After the widgets: they call back into the window from their first moment.
    editing::Editor editor_;
    DocumentCommands commands_;
    CommandDispatch dispatch_;
};

}  // namespace kestrel::app
