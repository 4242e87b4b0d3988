#pragma once

#include <QObject>
#include <QThreadPool>
#include <atomic>
#include <chrono>
#include <future>
#include <memory>
#include <string>

#include "services/Clipboard.h"

namespace kestrel::desktop {

// The clipboard of the desktop library; what other programs own is fetched aside, so that none of
// them can hold up the window. Outlives every window that shows whether it holds an image.
class QtClipboard : public QObject, public services::Clipboard {
  public:
    QtClipboard();
    QtClipboard(const QtClipboard&) = delete;
    QtClipboard& operator=(const QtClipboard&) = delete;
    ~QtClipboard() override;

    bool HasImage() const override { return !format_.empty(); }
    Result<gdi::SampledPicture> GetImage() override;
    void SetImage(const gdi::Surface& pixels) override;

  private:
    // Asks what the clipboard holds now; the answer comes when it comes.
    void Ask();
    void AskAgain(int question);
    void Learn(const std::string& format);
    void StartFetching();
    // For this long, and only while nothing else is asked, an answer is worth waiting for.
    std::function<bool()> WantedFor(int question, std::chrono::milliseconds patience) const;

    // The image format that is read; empty for none.
    std::string format_;
    // Counts the questions what the clipboard holds: answers to old ones come too late.
    std::atomic<int> question_ = 0;
    std::chrono::milliseconds recovery_{};
    // The image that is being fetched, and for which state of the clipboard.
    std::future<Result<gdi::SampledPicture>> coming_;
    int comingFor_ = 0;
    // One thread. A pool waits for its thread when it goes, so it goes only when that is idle.
    std::unique_ptr<QThreadPool> aside_ = std::make_unique<QThreadPool>();
};

}  // namespace kestrel::desktop
