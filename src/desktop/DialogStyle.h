#pragma once

#include <QProxyStyle>

namespace kestrel::desktop {

// The desktop's style, but the buttons of the library's dialogs and boxes have no pictures, as
// those of the program's own have none; and boxes can be seen on dark desktops too.
class DialogStyle : public QProxyStyle {
  public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

}  // namespace kestrel::desktop
