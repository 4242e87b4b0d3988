#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QMenuBar>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <map>

#include "commands/CommandDispatch.h"
#include "commands/MainCommands.h"
#include "commands/WellCommands.h"
#include "editing/Editor.h"
#include "platform/controls/ImageList.h"
#include "windows/FrmDialogs.h"
#include "windows/widgets/MenuView.h"
#include "windows/widgets/PictureBox.h"
#include "windows/widgets/StatusBar.h"
#include "windows/widgets/SurfaceWidget.h"
#include "windows/widgets/ToolBar.h"

namespace kestrel::windows {

// The main window: lays out, paints and forwards events. Positions are in pixels of the client
// area, which never changes its size.
class FrmIcoEd : public QWidget,
                 private editing::GridView,
                 private editing::PreviewView,
                 private editing::ToolsView,
                 private editing::ColorsView,
                 private editing::StatusView,
                 private editing::EditorWindow,
                 private commands::MainWindow {
  public:
    explicit FrmIcoEd(const commands::MainServices& services);
    FrmIcoEd(const FrmIcoEd&) = delete;
    FrmIcoEd& operator=(const FrmIcoEd&) = delete;
    ~FrmIcoEd() override;

    // Builds the window up to its idle state, not shown yet, and opens a file; an empty path opens
    // none.
    void Form_Load(const std::string& pathToOpen);

    editing::Editor& OpenEditor() { return editor_; }
    std::string StatusText(editing::StatusPanel panel) const;
    widgets::SurfaceWidget& GridWidget() { return *picMain_; }
    widgets::SurfaceWidget& PicTools() { return *picTools_; }
    widgets::SurfaceWidget& PicPal() { return *picPal_; }
    widgets::ToolBar& Toolbar1() { return *toolbar1_; }
    commands::MainMenus& Menus() { return menus_; }
    // The menus as they are shown: what stands for an item of the bar, and the editing pop-up.
    QAction* BarAction(std::string_view key) const { return barView_.ActionOf(key); }
    QMenu* EditingPopup();

  protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
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
    void FitMenuBar();
    void PlaceOnScreen();
    void PaintReadouts(QPainter& painter);
    // FrmIcoEd_Tools.cpp
    void LayOutTools();
    // A box at `place` that shows `hint` on the status bar while the pointer is over it.
    void AddBox(const char* name, const QRect& place, widgets::PictureBox::Edge edge,
                const QIcon& picture, const i18n::Text& hint);
    void ConnectTools();
    void PaintIndicators(QPainter& painter);
    // FrmIcoEd_Palette.cpp
    void LayOutPalette();
    void ConnectPalette();
    // FrmIcoEd_Menu.cpp
    void BuildMenus();
    void BuildToolbar();
    void DisableMissingCommands();
    void ShowEditingPopupByKey();
    void Toolbar1_MouseMove(int x);
    // FrmIcoEd_Grid.cpp
    void ConnectGrid();
    void ClearStatusPanels();
    bool MoveSelectionByKey(const QKeyEvent& event);

    void RepaintGrid(gdi::Rect area) override;
    void RepaintPreview(gdi::Rect area) override;
    void SetTitle(const std::string& title) override;
    void SetStatusPanel(editing::StatusPanel panel, std::string_view text) override;
    void PrintReadout(editing::StatusPanel panel, std::string_view text) override;
    void SetGridCursor(editing::GridCursor cursor) override;
    void RepaintTools() override;
    void SetToolTipOfTools(std::string_view text) override;
    void ShowWell(editing::Button button, gdi::COLORREF color, bool transparent) override;
    void RepaintPalette() override;
    void ShowChkPal(bool ticked) override;
    void ShowEditingPopup() override;
    void RefreshEditCommands() override;

    services::WindowHandle hWnd() const override;
    void EnableGrid(bool enabled) override;
    void StartTmr() override;
    void Unload() override;
    void SetControlCaption(std::string_view control, std::string_view text) override;
    void SetControlToolTip(std::string_view control, std::string_view text) override;
    void EnableButton(std::string_view key, bool enabled) override;
    void SetButtonToolTip(std::string_view key, std::string_view text) override;
    void LanguageChanged() override;

    QMenuBar* menuBar_ = nullptr;
    widgets::ToolBar* toolbar1_ = nullptr;
    widgets::SurfaceWidget* picMain_ = nullptr;
    widgets::SurfaceWidget* picIcon_ = nullptr;
    widgets::SurfaceWidget* picTools_ = nullptr;
    widgets::SurfaceWidget* picPal_ = nullptr;
    QCheckBox* chkPal_ = nullptr;
    QLabel* label1_ = nullptr;
    widgets::StatusBar* statusBar_ = nullptr;
    QTimer* tmr_ = nullptr;
    std::map<editing::StatusPanel, QString> readouts_;
    bool commandRunning_ = false;

    services::HelpViewer& help_;
    services::Clipboard& clipboard_;
    controls::ImageList pictures_;
    controls::ImageList wellPictures_;
    commands::MainMenus menus_;
    widgets::MenuView barView_;
    widgets::MenuView popupView_;
    // After the widgets: they call back into the window from their first moment.
    editing::Editor editor_;
    services::Cdb cdb_;
    commands::WellCommands wellCommands_;
    FrmDialogs dialogs_;
    commands::MainCommands commands_;
    commands::CommandDispatch dispatch_;
};

}  // namespace kestrel::windows
