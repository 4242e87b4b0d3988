#include "windows/ShownMagnifier.h"

#include "windows/widgets/AccessibleRole.h"

namespace kestrel::windows {

void ShownMagnifier::ShowMagnifier() {
    // A window that was just closed is only about to go.
    if (window_ != nullptr && window_->isHidden()) Delete();
    if (window_ == nullptr) {
        window_ = new frmZoom(services_);
        window_->setAttribute(Qt::WA_DeleteOnClose);
        widgets::SetRole(*window_, QAccessible::Window);
    }
    window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void ShownMagnifier::Delete() {
    const frmZoom* const gone = window_;
    window_.clear();
    delete gone;
}

void ShownMagnifier::Rest(bool resting) {
    if (window_ != nullptr) window_->Rest(resting);
}

void ShownMagnifier::ShowCaptions(std::string_view code) {
    if (window_ != nullptr) window_->ShowCaptions(code);
}

void ShownMagnifier::Close() {
    if (window_ != nullptr) window_->close();
}

}  // namespace kestrel::windows
