#pragma once

#include <string>

#include "platform/Result.h"
#include "platform/gdi/Surface.h"

namespace kestrel::services {

enum class Orientation { Portrait, Landscape };

// The printer, or the file, that the printer dialog chose last. Every document has one page.
// Lengths and positions are in dots, from the top left corner of the printable area.
class Printer {
  public:
    // Common resolutions are multiples of it, so that edges fall on whole dots of the paper.
    static constexpr int kDotsPerInch = 300;

    virtual ~Printer() = default;
    // Whether there is anything to print on, files included.
    virtual bool IsInstalled() const = 0;
    // Of the pages from now on.
    virtual void SetOrientation(Orientation orientation) = 0;
    virtual gdi::Size PrintableArea() const = 0;
    // On the page of the document that ends next.
    virtual void FillRectangle(gdi::Rect area, gdi::COLORREF color) = 0;
    // Prints what was filled since the last document ended, as a job or a file of its own. Fails
    // with kPrinterStopped where the job was taken and waits.
    virtual Result<void> EndDocument(const std::string& title) = 0;
};

}  // namespace kestrel::services
