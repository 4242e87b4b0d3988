#pragma once

#include <QObject>
#include <QThreadPool>
#include <string>
#include <vector>

#include "platform/desktop/Clipboard.h"

class QByteArray;

namespace kestrel::qt {

// The clipboard of the desktop library; what other programs own is fetched aside, so that none of
// them can hold up the window. Outlives every window that shows whether it holds an image.
class QtClipboard : public QObject, public desktop::Clipboard {
  public:
    QtClipboard();

    bool HasImage() const override { return !format_.empty(); }
    Result<gdi::Surface> GetImage() override;
    void SetImage(const gdi::Surface& pixels) override;

  private:
    // Asks what the clipboard holds now; the answer comes when it comes.
    void Ask();
    void Learn(const std::vector<std::string>& formats);

    // The image format that is read; empty for none.
    std::string format_;
    // Counts the questions: an answer to an old one is too late.
    int question_ = 0;
    // One thread: what was asked in vain does not pile up. Ends before the rest.
    QThreadPool aside_;
};

// A picture file as pixels, whatever its format. Fails with kInvalidPicture.
Result<gdi::Surface> ReadPicture(const QByteArray& file);

}  // namespace kestrel::qt
