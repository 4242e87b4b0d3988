#pragma once

#include <QPointer>

#include "desktop/HelpWindow.h"
#include "services/HelpViewer.h"
#include "services/Shell.h"

namespace kestrel::desktop {

// Help in a window of its own; links to the web go to the shell.
class QtHelpViewer final : public services::HelpViewer {
  public:
    // `shell` must outlive the viewer.
    explicit QtHelpViewer(services::Shell& shell) : shell_(shell) {}

    QtHelpViewer(const QtHelpViewer&) = delete;
    QtHelpViewer& operator=(const QtHelpViewer&) = delete;
    ~QtHelpViewer() override { Close(); }

    bool ShowHelp(const std::string& file, const std::string& title) override;
    void ChangePage(const std::string& file, const std::string& title) override;
    void Close() override;

    // Null while no help is shown.
    HelpWindow* Window() const { return window_; }

  private:
    HelpWindow* NewWindow();
    void Follow(const QUrl& link);

    services::Shell& shell_;
    QPointer<HelpWindow> window_;
};

}  // namespace kestrel::desktop
