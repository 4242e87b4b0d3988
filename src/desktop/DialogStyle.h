#pragma once

#include <QProxyStyle>

namespace kestrel::desktop {

// The desktop's style, but the buttons of the library's dialogs and boxes have no pictures, as
// those of the program's own have none.
class DialogStyle : public QProxyStyle {
  public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override {
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        return QProxyStyle::styleHint(hint, option, widget, answer);
    }
};

}  // namespace kestrel::desktop
