#include "tools/IconExtraction.h"

#include <algorithm>
#include <utility>

#include "i18n/Captions.h"
#include "i18n/Messages.h"
#include "platform/system/PathText.h"
#include "services/Hourglass.h"

namespace kestrel::tools {

namespace {

using services::BoxIcon;

services::FileRequest SourceRequest() {
    constexpr int kLibraries = 3;
    services::FileRequest request;
    request.title = i18n::kOpenTitle.Now();
    request.filter = i18n::kSourceFilter;
    request.filterIndex = kLibraries;
    request.flags = services::kFileMustExist | services::kHideReadOnly;
    return request;
}

// As Open reads icons: of the size that is edited, by repeating or dropping pixels.
Result<formats::IconImage> ReadIcon(const formats::IconSource& source, int icon) {
    return source.Icon(static_cast<std::size_t>(icon), gdi::Size{gdi::kIconSize, gdi::kIconSize});
}

bool HoldsNoIcons(const Error& error) {
    return error.number == kNoIcons || error.number == kIconsElsewhere;
}

}  // namespace

IconExtraction::IconExtraction(const ExtractionServices& services, const std::string& path)
    : services_(services), path_(path), name_(system::FileTitleOf(path)) {
    if (Open({path_, name_})) info_ = i18n::kFirstIcon.Now();
}

// A failure leaves all as it was.
Result<void> IconExtraction::Open(const services::ChosenFile& file) {
    const services::Hourglass hourglass(services_.application);
    // The menu or dialog that led here goes from the screen first.
    services_.application.DoEvents();
    auto bytes = services_.files.OpenSource(file.path);
    if (!bytes) return tl::unexpected(bytes.error());
    auto source = formats::IconSource::Open(*std::move(bytes), file.fileTitle,
                                            formats::IconSource::Lists::Readable);
    if (!source) return tl::unexpected(source.error());
    path_ = file.path;
    name_ = file.fileTitle;
    source_ = *std::move(source);
    grid_ = IconGrid(static_cast<int>(source_->count));
    selected_ = 0;
    cells_ = {};
    // What is seen at first is read under the hourglass.
    constexpr int kSeen = IconGrid::kSeenRows * IconGrid::kColumns;
    for (int icon = 0; icon < std::min(grid_.Count(), kSeen); ++icon)
        PictureOf(icon);
    return {};
}

std::string IconExtraction::Title() const {
    return i18n::ExtractionTitle(name_, grid_.Count());
}

const gdi::Surface& IconExtraction::PictureOf(int icon) {
    Cell& cell = cells_[static_cast<std::size_t>(icon) % cells_.size()];
    if (cell.icon != icon) cell = {icon, Draw(icon)};
    return cell.pixels;
}

gdi::Surface IconExtraction::Draw(int icon) const {
    gdi::Surface pixels(gdi::kIconSize, gdi::kIconSize);
    if (const auto image = ReadIcon(*source_, icon))
        gdi::DrawOver(pixels, pixels.Bounds(), image->planes);
    return pixels;
}

bool IconExtraction::SelectAt(int x, int y) {
    const std::optional<int> icon = grid_.IconAt(x, y);
    if (busy_ || !icon) return false;
    Select(*icon);
    return true;
}

void IconExtraction::MoveSelection(GridMove move) {
    if (HasIcons()) Select(grid_.Moved(selected_, move));
}

void IconExtraction::Select(int icon) {
    selected_ = icon;
    info_ = i18n::IconSelected(icon + 1);
}

bool IconExtraction::Browse(const services::OwnerWindow& owner) {
    busy_ = true;
    const bool shown = ShowChosenFile(owner);
    busy_ = false;
    return shown;
}

bool IconExtraction::ShowChosenFile(const services::OwnerWindow& owner) {
    const auto chosen = services::Cdb(services_.dialogs, owner).ShowOpen(SourceRequest());
    if (!chosen && chosen.error().number == kDialogCancelled) return false;
    const services::ChosenFile file = chosen.value_or(services::ChosenFile{});
    const Result<void> opened = chosen ? Open(file) : tl::unexpected(chosen.error());
    if (opened) {
        info_ = i18n::kFirstChosenIcon.Now();
    } else if (HoldsNoIcons(opened.error())) {
        services_.boxes.Show(BoxIcon::Information, services::BoxButtons::Ok,
                             i18n::ContainsNoIcons(file.fileTitle),
                             std::string(i18n::kProgramName));
    } else {
        services_.boxes.Show(BoxIcon::Exclamation, services::BoxButtons::Ok,
                             i18n::CannotOpenSource(file.path),
                             std::string(i18n::kErrorTitle.Now()));
    }
    return opened.has_value();
}

Result<formats::IconImage> IconExtraction::SelectedIcon() const {
    const services::Hourglass hourglass(services_.application);
    return ReadIcon(*source_, selected_);
}

}  // namespace kestrel::tools
