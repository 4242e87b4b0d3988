#pragma once

#include <QMouseEvent>
#include <QWidget>
#include <functional>

#include "tools/IconExtraction.h"

namespace kestrel::widgets {

// The icons of a file in their grid, as high as all their rows; the parent shows a part of it.
// Icons are drawn when they come into view.
class IconGridView : public QWidget {
  public:
    // `extraction` outlives the widget.
    IconGridView(tools::IconExtraction& extraction, QWidget* parent);

    // Another file is shown.
    void ShowFile();
    // Another icon is selected.
    void ShowSelection();

    // A button came up at this point of the part that is seen; `second` where it ends a double
    // click of the left one.
    std::function<void(QPoint point, bool second)> onMouseUp;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void UpdateBox(int icon);
    void TellSelection();

    tools::IconExtraction& extraction_;
    // Where the selection box was drawn last.
    int boxed_ = 0;
    bool doubleClicked_ = false;
};

}  // namespace kestrel::widgets
