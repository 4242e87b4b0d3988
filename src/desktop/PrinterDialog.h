#pragma once

#include <QGuiApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <memory>

#include "desktop/PrintServer.h"
#include "services/MessageBoxes.h"

namespace kestrel::desktop {

// The hourglass is shown while it lives.
class WaitCursor {
  public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

// The library asks the print server on the window's thread, and waits as long as it takes: it is
// kept from a server that is silent, before the printer is made and again when it is chosen.
class PrinterDialog : public QPrintDialog {
  public:
    using Silence = std::unique_ptr<NoPrintServer>;

    // Null where the print server answers.
    static Silence AvoidSilentServer();

    PrinterDialog(QPrinter& printer, Silence& silence, services::MessageBoxes& boxes,
                  QWidget* owner);

    void accept() override;

  private:
    void HideWhatNeedsPages();
    void KeepFromSpecialFiles();

    Silence& silence_;
    services::MessageBoxes& boxes_;
};

}  // namespace kestrel::desktop
