#pragma once

#include <QWidget>
#include <string>
#include <utility>

#include "settings/WindowPositions.h"

namespace kestrel::windows {

// A window of the desktop library as one whose place is remembered.
class PlacedWindow : public settings::PositionedWindow {
  public:
    // Before a window is on the screen nobody knows its frame: that of `framed`, which is there
    // already, stands for it. Both outlive this.
    PlacedWindow(QWidget& window, const QWidget& framed, std::string name)
        : window_(window), framed_(framed), name_(std::move(name)) {}

    std::string Name() const override { return name_; }
    settings::WindowState State() const override;
    settings::WindowBounds Bounds() const override;
    // The desktop with all its monitors.
    settings::WindowBounds Screen() const override;
    void Move(const settings::WindowBounds& bounds) override;
    void Maximise() override;

    // At the lower right of its monitor, where the editor's window is not.
    void PlaceAtFirst();
    // Moves the window, before it is shown, onto a monitor where none shows its title any more.
    void BringOntoMonitor();

  private:
    QSize FrameSize() const {
        const QWidget& known = window_.isVisible() ? window_ : framed_;
        return known.frameGeometry().size() - known.size();
    }
    // What the window leaves free of an area.
    QSize RoomIn(const QRect& area) const { return area.size() - window_.size() - FrameSize(); }

    QWidget& window_;
    const QWidget& framed_;
    std::string name_;
};

}  // namespace kestrel::windows
