#pragma once

#include <QMenuBar>
#include <QWidget>
#include <memory>

#include "commands/Commands.h"
#include "desktop/QtOwnerWindow.h"
#include "editing/Editor.h"
#include "platform/controls/ImageList.h"
#include "windows/ColorsPane.h"
#include "windows/CommandRunner.h"
#include "windows/FrmDialogs.h"
#include "windows/GridPane.h"
#include "windows/NamedControls.h"
#include "windows/PreviewPane.h"
#include "windows/ShownMagnifier.h"
#include "windows/TaskWindow.h"
#include "windows/ToolsPane.h"
#include "windows/widgets/MenuView.h"
#include "windows/widgets/StatusBar.h"
#include "windows/widgets/ToolBar.h"

namespace kestrel::windows {

// The main window: lays out its panes and forwards events. Positions are in pixels of the client
// area, which never changes its size.
class FrmIcoEd : public QWidget, private editing::EditorWindow, private commands::MainWindow {
  public:
    explicit FrmIcoEd(const commands::MainServices& services);
    FrmIcoEd(const FrmIcoEd&) = delete;
    FrmIcoEd& operator=(const FrmIcoEd&) = delete;
    ~FrmIcoEd() override;

    // Builds the window up to its idle state, not shown yet, and opens a file; an empty path opens
    // none.
    void Form_Load(const std::string& pathToOpen);
    // The session is about to end: asks about unsaved changes where that is possible. False when
    // the user wants to go on.
    bool MayEndSession(bool mayAsk);
    // Once it has been painted.
    void ShowInTray() { commands_.tray.WindowStands(); }

    editing::Editor& OpenEditor() { return editor_; }
    std::string StatusText(editing::StatusPanel panel) const { return statusBar_.Text(panel); }
    widgets::SurfaceWidget& GridWidget() { return grid_.PicMain(); }
    widgets::SurfaceWidget& PicTools() { return tools_.PicTools(); }
    widgets::SurfaceWidget& PicPal() { return colors_.PicPal(); }
    widgets::ToolBar& Toolbar1() { return *toolbar1_; }
    commands::MainMenus& Menus() { return menus_; }
    // The menus as they are shown: what stands for an item of the bar, and the editing pop-up.
    QAction* BarAction(std::string_view key) const { return barView_.ActionOf(key); }
    QMenu* EditingPopup();

  protected:
    // FrmIcoEd_Events.cpp
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    // FrmIcoEd_Layout.cpp
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    // FrmIcoEd_Keys.cpp
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    bool Form_Unload();
    void OfferRecovery(const std::string& pathToOpen);
    void Form_OLEDragDrop(const std::string& pathToOpen);
    void FollowDesktopColors();

    // FrmIcoEd_Events.cpp
    bool IsBackground(QPoint at) const;
    // FrmIcoEd_Layout.cpp
    void LayOutControls();
    void ShowTextControls(bool shown);
    void FitTexts();
    void FitMenuBar();
    void PlaceOnScreen();
    // FrmIcoEd_Menu.cpp
    void BuildMenus();
    void BuildToolbar();
    // A click on an item or a button.
    void RunRow(std::span<const commands::CommandRow> rows, std::string_view key);
    void Toolbar1_MouseMove(int x);
    // FrmIcoEd_Keys.cpp
    void BuildKeys();
    void ShowEditingPopupByKey();
    bool MoveSelectionByKey(const QKeyEvent& event);

    void SetTitle(const std::string& title) override;
    void RefreshEditCommands() override;
    void Unload() override;
    void LanguageChanged() override;
    gdi::Rect ScreenArea() const override;
    void LeaveScreen() override { task_.Leave(); }
    void ComeBack() override { task_.ComeBack(); }

    services::Application& application_;
    services::HelpViewer& help_;
    services::Clipboard& clipboard_;
    services::Tray& tray_;
    controls::ImageList pictures_;
    controls::ImageList wellPictures_;
    commands::MainMenus menus_;
    widgets::MenuView barView_;
    widgets::MenuView popupView_;

    // The panes stand before the editor, which draws into them at once.
    std::unique_ptr<QMenuBar> menuBar_;
    widgets::StatusBar statusBar_{this};
    std::unique_ptr<widgets::ToolBar> toolbar1_;
    GridPane grid_{this};
    PreviewPane preview_{statusBar_, wellPictures_, this};
    ToolsPane tools_{this};
    ColorsPane colors_{{wellPictures_, pictures_, statusBar_}, this};

    editing::Editor editor_;
    NamedControls controls_{*toolbar1_};
    desktop::QtOwnerWindow owner_{*this};
    FrmDialogs dialogs_;
    ShownMagnifier magnifier_;
    TaskWindow task_{*this};
    commands::Commands commands_;
    CommandRunner runner_{editor_, grid_, *this};
};

}  // namespace kestrel::windows
