#include "commands/CSysTray.h"

#include <utility>

#include "commands/ErrorBox.h"
#include "formats/IconFile.h"
#include "formats/IconSource.h"
#include "i18n/Messages.h"
#include "platform/system/LetterCase.h"
#include "platform/system/PathText.h"

namespace kestrel::commands {

using services::TrayMessage;

namespace {

constexpr gdi::Size kIcon{32, 32};

// So many characters of a UTF-8 text, none of them cut.
std::string FirstCharacters(const std::string& text, std::size_t most) {
    std::size_t end = 0;
    const auto continues = [&] { return (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U; };
    for (std::size_t count = 0; end < text.size(); ++end) {
        if (!continues() && ++count > most) break;
    }
    return text.substr(0, end);
}

bool IsAnimation(const std::string& file) {
    constexpr std::string_view kEnding = "ani";
    return file.size() >= kEnding.size() &&
           system::SameName(std::string_view(file).substr(file.size() - kEnding.size()), kEnding);
}

void Raise(const std::function<void()>& event) {
    if (event) event();
}

}  // namespace

CSysTray::CSysTray(TaskListWindow& sourceWindow, services::Tray& tray, system::FileSystem& files,
                   services::MessageBoxes& boxes)
    : sourceWindow_(sourceWindow), tray_(tray), files_(files), boxes_(boxes) {
    tray_.onMessage = [this](TrayMessage message) { Notify(message); };
}

CSysTray::~CSysTray() {
    tray_.onMessage = nullptr;
}

void CSysTray::IconInSysTray() {
    tray_.Add(icon_);
}

void CSysTray::RemoveFromSysTray() {
    tray_.Remove();
}

void CSysTray::MinToSysTray() {
    IconInSysTray();
    sourceWindow_.Hide();
    sourceWindow_.ShowInTaskList(false);
}

void CSysTray::Restore() {
    sourceWindow_.ShowNormal();
    sourceWindow_.ShowInTaskList(true);
    RemoveFromSysTray();
}

void CSysTray::ChangeIcon(const std::string& file) {
    if (IsAnimation(file)) {
        const bool shown = ShowStep(file) || (std::exchange(frame_, 0) != 0 && ShowStep(file));
        if (!shown) {
            return ShowError(boxes_, std::string(i18n::kTrayIconFailed).append(file) + "[0]  ",
                             i18n::kTrayErrorTitle);
        }
    } else {
        icon_.picture.reset();
        if (const auto bytes = files_.ReadFile(file, formats::kMaxIconFileBytes)) {
            if (auto image = formats::ReadBestImage(*bytes, kIcon))
                icon_.picture = std::move(image->planes);
        }
    }
    tray_.Modify(icon_);
}

bool CSysTray::ShowStep(const std::string& file) {
    auto bytes = files_.OpenSource(file);
    if (!bytes) return false;
    const auto source =
        formats::IconSource::Open(*std::move(bytes), std::string(system::FileTitleOf(file)),
                                  formats::IconSource::Lists::Stored);
    if (!source || frame_ >= source->count) return false;
    auto step = source->Icon(frame_, kIcon);
    if (!step) return false;
    icon_.picture = std::move(step->planes);
    ++frame_;
    return true;
}

void CSysTray::ChangeToolTip(const std::string& text) {
    toolTip_ = text;
    icon_.toolTip = FirstCharacters(text, kMaxToolTip);
    tray_.Modify(icon_);
}

void CSysTray::Notify(TrayMessage message) {
    if (std::exchange(busy_, true)) return;
    switch (message) {
        case TrayMessage::LButtonDown:
            Raise(LButtonDown);
            break;
        case TrayMessage::LButtonUp:
            Raise(LButtonUp);
            break;
        case TrayMessage::LButtonDblClk:
            DoubleClick();
            break;
        case TrayMessage::RButtonDown:
            Raise(RButtonDown);
            break;
        case TrayMessage::RButtonUp:
            Raise(RButtonUp);
            break;
        case TrayMessage::RButtonDblClk:
            Raise(RButtonDblClk);
            break;
    }
    busy_ = false;
}

void CSysTray::DoubleClick() {
    if (DefaultDblClk) Restore();
    Raise(LButtonDblClk);
}

}  // namespace kestrel::commands
