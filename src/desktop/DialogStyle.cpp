#include "desktop/DialogStyle.h"

#include <QPainter>
#include <QStyleOption>

namespace kestrel::desktop {

namespace {

// The library's own style outlines boxes in a darker shade of the window's colour, which on a dark
// or black window nobody sees.
void DrawOutline(QStyle::PrimitiveElement element, const QStyleOption& option, QPainter& painter) {
    QColor line = option.palette.color(QPalette::WindowText);
    line.setAlphaF(0.5F);
    const QRect outline = option.rect.adjusted(0, 0, -1, -1);
    painter.save();
    painter.setPen(line);
    painter.setBrush(Qt::NoBrush);
    if (element == QStyle::PE_IndicatorRadioButton) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawEllipse(QRectF(outline).adjusted(0.5, 0.5, -0.5, -0.5));
    } else {
        painter.drawRect(outline);
    }
    painter.restore();
}

bool IsDark(const QStyleOption& option) {
    constexpr int kMiddle = 128;
    return option.palette.color(QPalette::Window).lightness() < kMiddle;
}

}  // namespace

int DialogStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* answer) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, answer);
}

void DialogStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isBox = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    // With the keyboard in it, a text box has a line in the desktop's own colour.
    const bool isTextBox =
        element == PE_FrameLineEdit && !option->state.testFlag(QStyle::State_HasFocus);
    if ((isBox || isTextBox) && IsDark(*option) && baseStyle()->name() == QLatin1String("fusion"))
        DrawOutline(element, *option, *painter);
}

}  // namespace kestrel::desktop
