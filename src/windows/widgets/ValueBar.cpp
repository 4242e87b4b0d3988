#include "windows/widgets/ValueBar.h"

#include <QPainter>

namespace kestrel::widgets {

ValueBar::ValueBar(Qt::Orientation orientation) : QScrollBar(orientation) {
    setFocusPolicy(Qt::StrongFocus);
    // It would speak of scrolling.
    setContextMenuPolicy(Qt::NoContextMenu);
    const bool vertical = orientation == Qt::Vertical;
    setInvertedAppearance(vertical);
    setInvertedControls(vertical);
    if (vertical) connect(this, &QScrollBar::actionTriggered, this, &ValueBar::TurnOver);
}

// Arrows, groove and inverted keys all take the top for the minimum, wherever that is shown.
void ValueBar::TurnOver(int action) {
    switch (action) {
        case SliderSingleStepAdd:
            return setSliderPosition(value() - singleStep());
        case SliderSingleStepSub:
            return setSliderPosition(value() + singleStep());
        case SliderPageStepAdd:
            return setSliderPosition(value() - pageStep());
        case SliderPageStepSub:
            return setSliderPosition(value() + pageStep());
        case SliderToMinimum:
            return setSliderPosition(maximum());
        case SliderToMaximum:
            return setSliderPosition(minimum());
        default:
            break;
    }
}

void ValueBar::paintEvent(QPaintEvent* event) {
    QScrollBar::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    // Filled: a line may leave out a side where a unit is no whole number of pixels.
    for (const QRect& side : QRegion(rect()) - rect().adjusted(1, 1, -1, -1))
        painter.fillRect(side, palette().color(QPalette::Highlight));
}

// Away from the user raises the value, whatever the other controls do.
void ValueBar::wheelEvent(QWheelEvent* event) {
    const bool inverted = invertedControls();
    setInvertedControls(false);
    QScrollBar::wheelEvent(event);
    setInvertedControls(inverted);
}

}  // namespace kestrel::widgets
