#pragma once

#include <QColor>
#include <QPageLayout>
#include <QPrinter>
#include <vector>

#include "desktop/PrintServer.h"
#include "platform/system/FileSystem.h"
#include "services/Printer.h"

namespace kestrel::desktop {

// Prints through the print system or into a PDF file. Each document is a PDF in memory first, so
// that a job and a file come to be whole or not at all.
class QtPrinter : public services::Printer {
  public:
    explicit QtPrinter(system::FileSystem& files) : files_(files) {}

    // Prints from now on as this one is set up: on which queue or file and paper, and how.
    void Use(QPrinter& printer);
    // Documents fail from now on: the printer that was chosen is on a server that does not answer.
    void UseNone();

    bool IsInstalled() const override;
    void SetOrientation(services::Orientation orientation) override;
    gdi::Size PrintableArea() const override;
    void FillRectangle(gdi::Rect area, gdi::COLORREF color) override;
    Result<void> EndDocument(const std::string& title) override;

  private:
    struct Filled {
        QRect area;
        QColor color;
    };

    QByteArray DocumentBytes(const std::string& title) const;

    system::FileSystem& files_;
    // Without a queue a document goes to the file.
    PrintJob job_;
    std::string file_;
    QPageLayout layout_;
    bool inColor_ = true;
    std::vector<Filled> page_;
};

}  // namespace kestrel::desktop
