#pragma once

#include <QObject>

namespace kestrel::desktop {

// Shows the program's windows on an X screen of so few colours that the desktop library draws
// nothing there: black on white. Installed as the application's event filter; windows can be read
// and answered, that is all.
class TwoColorWindows : public QObject {
  public:
    // Whether the primary screen needs it.
    static bool IsNeeded();

    bool eventFilter(QObject* target, QEvent* event) override;
};

}  // namespace kestrel::desktop
