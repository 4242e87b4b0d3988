#include "commands/CaptureCommands.h"

#include <chrono>
#include <optional>
#include <thread>
#include <utility>

#include "commands/ErrorBox.h"
#include "i18n/Messages.h"
#include "tools/ScreenSettling.h"

namespace kestrel::commands {

namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

// How long windows may take to be gone from the screen: as a rule, where they fade out, and where
// nobody can look whether they are.
constexpr milliseconds kPatience{150};
constexpr milliseconds kPatienceWhileFading{500};
constexpr milliseconds kUnseen{250};
constexpr milliseconds kPoll{3};

// Shadows lie outside a window.
constexpr int kShadow = 48;

}  // namespace

CaptureCommands::CaptureCommands(editing::Editor& editor, const CaptureParts& parts)
    : editor_(editor), parts_(parts) {}

void CaptureCommands::Capture() {
    parts_.magnifier.Rest(true);
    const Result<void> picked = Pick();
    parts_.window.ComeBack();
    parts_.magnifier.Rest(false);
    if (picked) return;
    const bool refused = picked.error().number == services::kScreenRefused;
    const i18n::Text& text = refused ? i18n::kScreenRefused : i18n::kNoScreenPictures;
    ShowError(parts_.boxes, std::string(text.Now()));
}

Result<void> CaptureCommands::Pick() {
    Result<gdi::Surface> picture =
        parts_.screen.IsSeen() ? PictureWithoutWindow() : UnseenPicture();
    if (!picture) return tl::unexpected(picture.error());
    const std::optional<gdi::Surface> square = parts_.dialogs.PickSquare(*std::move(picture));
    if (square) Take(*square);
    return {};
}

// The picture of a large screen takes its time: it is taken while one still makes sure that nothing
// changes any more where the window was, and again when something does.
Result<gdi::Surface> CaptureCommands::PictureWithoutWindow() {
    const gdi::Rect window = parts_.window.ScreenArea();
    const gdi::Point leftTop{window.left - kShadow, window.top - kShadow};
    gdi::Surface place(window.width + 2 * kShadow, window.height + 2 * kShadow);
    parts_.screen.Copy(leftTop, place);
    tools::ScreenSettling settling(place, {kShadow, kShadow, window.width, window.height},
                                   parts_.screen.IsComposited() ? kPatienceWhileFading : kPatience);

    parts_.window.LeaveScreen();
    const auto start = Clock::now();
    std::optional<Result<gdi::Surface>> picture;
    while (true) {
        parts_.loop.DoEvents();
        const auto elapsed = std::chrono::duration_cast<milliseconds>(Clock::now() - start);
        parts_.screen.Copy(leftTop, place);
        const tools::Gone gone = settling.Look(elapsed, place);
        if (gone == tools::Gone::No) {
            picture.reset();
        } else if (!picture) {
            picture = parts_.screen.Picture();
        }
        if (gone == tools::Gone::Yes) return *std::move(picture);
        std::this_thread::sleep_for(kPoll);
    }
}

Result<gdi::Surface> CaptureCommands::UnseenPicture() {
    parts_.window.LeaveScreen();
    for (const auto start = Clock::now(); Clock::now() - start < kUnseen;) {
        parts_.loop.DoEvents();
        std::this_thread::sleep_for(kPoll);
    }
    return parts_.screen.Picture();
}

void CaptureCommands::Take(const gdi::Surface& square) {
    editing::IconEdit edit = editor_.EditIcon(editing::Leaves::Entry);
    gdi::IconPlanes& icon = edit.Planes();
    for (int y = 0; y < gdi::kIconSize; ++y) {
        for (int x = 0; x < gdi::kIconSize; ++x)
            icon.SetOpaque(x, y, square.GetPixel(x, y));
    }
}

}  // namespace kestrel::commands
