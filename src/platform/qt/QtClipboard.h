#pragma once

#include <QObject>
#include <QThreadPool>
#include <atomic>
#include <string>

#include "platform/desktop/Clipboard.h"

namespace kestrel::qt {

// The clipboard of the desktop library; what other programs own is fetched aside, so that none of
// them can hold up the window. Outlives every window that shows whether it holds an image.
class QtClipboard : public QObject, public desktop::Clipboard {
  public:
    QtClipboard();
    QtClipboard(const QtClipboard&) = delete;
    QtClipboard& operator=(const QtClipboard&) = delete;
    ~QtClipboard() override;

    bool HasImage() const override { return !format_.empty(); }
    Result<gdi::Surface> GetImage() override;
    void SetImage(const gdi::Surface& pixels) override;

  private:
    // Asks what the clipboard holds now; the answer comes when it comes.
    void Ask();
    void AskAgain(int question);
    void Learn(const std::string& format);

    // The image format that is read; empty for none.
    std::string format_;
    // Counts the questions: an old one is not worth asking, and its answer comes too late.
    std::atomic<int> question_ = 0;
    // One thread; ends before the rest.
    QThreadPool aside_;
};

}  // namespace kestrel::qt
