#pragma once

#include <QBoxLayout>
#include <QTimer>
#include <QWidget>

#include "desktop/XWindowState.h"
#include "editing/EditorViews.h"
#include "platform/controls/ImageList.h"
#include "services/Application.h"
#include "settings/Settings.h"
#include "tools/Magnifier.h"
#include "tools/MagnifierClock.h"
#include "windows/PlacedWindow.h"
#include "windows/widgets/DevicePixelView.h"
#include "windows/widgets/PercentBox.h"
#include "windows/widgets/PictureButton.h"
#include "windows/widgets/ValueBar.h"

namespace kestrel::windows {

// What the magnifier works with; all of it outlives the window.
struct MagnifierServices {
    services::Screen& screen;
    services::Application& application;
    settings::Settings& settings;
    // The main window, and its status bar.
    const QWidget& editor;
    editing::StatusView& status;
};

// The magnifier: shows the screen around the pointer, enlarged or reduced. Hidden or minimised it
// does nothing at all.
class frmZoom : public QWidget {
  public:
    explicit frmZoom(const MagnifierServices& services);

    // Its texts in the language of this code; any other code changes nothing.
    void ShowCaptions(std::string_view code);
    // While it rests it does not look at the screen and claims no place above other windows.
    void Rest(bool resting);

  protected:
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void BuildControls();
    QLayout* NewControlRow();
    void Form_Load();
    void Form_Unload();
    void tmrZoom_Timer();
    void hsbZoom_Change();
    void txtZoom_KeyEnter();
    void txtZoom_LostFocus();
    void chkGrid_Click();
    void chkOnTop_Click();
    void KeepOnTop();

    bool IsSeen() const { return isVisible() && !isMinimized(); }
    // Starts or stops the timer, and tells the main window.
    void WakeOrSleep();
    void ShowRatio();
    void FollowDesktopColors();

    MagnifierServices services_;
    controls::ImageList pictures_;
    tools::Magnifier magnifier_;
    tools::MagnifierClock clock_;
    PlacedWindow place_;
    desktop::XWindowState topmost_{*this, "_NET_WM_STATE_ABOVE"};
    bool resting_ = false;

    widgets::PictureButton* chkGrid_ = nullptr;
    widgets::PictureButton* chkOnTop_ = nullptr;
    widgets::PercentBox* txtZoom_ = nullptr;
    widgets::ValueBar* hsbZoom_ = nullptr;
    widgets::DevicePixelView* picZoom_ = nullptr;
    QTimer tmrZoom_;
};

}  // namespace kestrel::windows
