#pragma once

#include <QToolButton>

#include "platform/controls/ImageList.h"

namespace kestrel::widgets {

// A flat button with a picture of a list, which Return presses too. A click leaves the keyboard
// where it is; where Tab has brought it, a frame in the desktop's own colour shows it.
class PictureButton : public QToolButton {
  public:
    PictureButton(const controls::ImageList& pictures, int number, QSize pictureSize,
                  QWidget* parent);

    // What it is called by the tool tip and, without the shortcut behind it in parentheses, by
    // screen readers.
    void SetName(const QString& name);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace kestrel::widgets
