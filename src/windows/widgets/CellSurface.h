#pragma once

#include <functional>

#include "windows/widgets/FocusMark.h"
#include "windows/widgets/SurfaceWidget.h"

namespace kestrel::widgets {

// How a surface is divided into cells, all of one size, row by row.
struct CellLayout {
    int columns = 0;
    int rows = 0;
    // In pixels of the surface. The line between two cells counts to the one after it.
    QSize cell;
    // Of the last line, which no cell follows. The mark lies on the lines and as far outside.
    int lastLine = 0;
    MarkGround ground{};
};

// A surface of cells that can be used by keyboard and is a list for screen readers: a mark stands
// on one of the cells, which arrow keys move. Unless `onKeyDown` is set, Space and Return click the
// cell as the left mouse button would, with Shift as the right one. While a mouse button is held
// the keys do nothing.
class CellSurface : public SurfaceWidget {
  public:
    CellSurface(const CellLayout& layout, QWidget* parent);

    const CellLayout& Layout() const { return layout_; }
    // The marked cell, by column and row.
    QPoint Cell() const { return cell_; }
    // With the lines around it.
    QRect PlaceOf(QPoint cell) const;
    // Marks another cell, as if a mouse had been there last.
    void PutCell(QPoint cell);
    // Whether the mark is seen: the keyboard has come here, or was used here last.
    bool ShowsMark() const { return byKeyboard_ && hasFocus(); }

    // The mark has moved to this cell. By default the pointer has, with no button held.
    std::function<void(QPoint cell)> onCell;
    // Space went down on the marked cell, alone or with Shift, and came up again.
    std::function<void(Qt::MouseButton button)> onKeyDown;
    std::function<void(Qt::MouseButton button)> onKeyUp;
    // Whether arrow keys move the mark at this moment. By default they do.
    std::function<bool()> mayMove;
    // What a cell is called, and whether it is the one in use.
    std::function<QString(QPoint cell)> nameOf;
    std::function<bool(QPoint cell)> isChosen;

    // Clicks a cell.
    void Click(QPoint cell, Qt::MouseButton button);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    bool MoveByKey(const QKeyEvent& event);
    bool PressByKey(const QKeyEvent& event);
    void LetGo();
    void MarkCell(QPoint cell);
    void PointAtCell();
    void UseByKeyboard(bool used);
    // Where the mark is drawn, and the units that show it.
    QRectF MarkPlace() const;
    QRect MarkArea() const;
    void UpdateMark();

    CellLayout layout_;
    QPoint cell_;
    bool byKeyboard_ = false;
    // What Space holds down.
    Qt::MouseButton held_ = Qt::NoButton;
};

}  // namespace kestrel::widgets
