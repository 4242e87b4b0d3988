#pragma once

#include <QObject>
#include <QWidget>

#include "commands/MainWindow.h"
#include "desktop/XWindowState.h"

namespace kestrel::windows {

// A window on the desktop's task list, and off it.
class TaskWindow : public QObject, public commands::TaskListWindow {
  public:
    explicit TaskWindow(QWidget& window);

    bool IsShown() const override { return window_.isVisible(); }
    void Hide() override;
    void ShowNormal() override;
    void ShowInTaskList(bool shown) override;
    // Off the screen for a while, whatever the tray asks for meanwhile, and back where it was.
    void Leave();
    void ComeBack();

    std::function<void()> onMinimised;

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    QWidget& window_;
    desktop::XWindowState offTaskList_{window_, "_NET_WM_STATE_SKIP_TASKBAR"};
    bool isListed_ = true;
    bool isAway_ = false;
};

}  // namespace kestrel::windows
