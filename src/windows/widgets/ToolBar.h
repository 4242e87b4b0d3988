#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/ImageList.h"
#include "windows/widgets/PictureButton.h"

namespace kestrel::widgets {

// A row of flat picture buttons, each known by its key, all of one size; lines part groups of them.
class ToolBar : public QWidget {
  public:
    // `pictures` must outlive the toolbar. A button's place takes `buttonSize`.
    ToolBar(const controls::ImageList& pictures, QSize buttonSize, QWidget* parent);

    // The next button will be the first of a group.
    void BeginGroup() { groups_.push_back(ButtonCount()); }
    // Adds a button with this picture at the right end.
    void AddButton(std::string_view key, int number);
    void SetToolTip(std::string_view key, std::string_view text) const;
    void SetEnabled(std::string_view key, bool enabled) const;
    // Null for an unknown key.
    PictureButton* Button(std::string_view key) const;

    int ButtonCount() const { return static_cast<int>(buttons_.size()); }
    // In pixels.
    int ButtonWidth() const { return buttonSize_.width(); }

    std::function<void(std::string_view key)> onClick;
    // The pointer moved to this x within the toolbar, disabled buttons and gaps included, or left
    // it.
    std::function<void(int x)> onMouseMove;
    std::function<void()> onLeave;

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    const controls::ImageList& pictures_;
    QSize buttonSize_;
    // How many buttons stand before each group but the first.
    std::vector<int> groups_;
    std::map<std::string, PictureButton*, std::less<>> buttons_;
};

}  // namespace kestrel::widgets
