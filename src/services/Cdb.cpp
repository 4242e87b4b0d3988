#include "services/Cdb.h"

namespace kestrel::services {

Cdb::Cdb(DesktopDialogs& desktop, const OwnerWindow& owner) : desktop_(desktop), owner_(owner) {
    customColors_.fill(gdi::kWhite);
}

Result<ChosenFile> Cdb::ShowOpen(const FileRequest& request) {
    FileRecord record = RecordOf(request);
    return Answer(desktop_.GetOpenFileName(record), record);
}

Result<ChosenFile> Cdb::ShowSave(const FileRequest& request) {
    FileRecord record = RecordOf(request);
    return Answer(desktop_.GetSaveFileName(record), record);
}

Result<gdi::COLORREF> Cdb::ShowColor(gdi::COLORREF current) {
    ColorRecord record{.owner = owner_.hWnd(),
                       .color = current,
                       .customColors = customColors_,
                       .flags = kInitialColor | kFullOpen};
    if (desktop_.ChooseColor(record) != kConfirmed) return Unconfirmed();
    customColors_ = record.customColors;
    return record.color;
}

Result<ChosenPrinter> Cdb::ShowPrinter() {
    PrinterRecord record{.owner = owner_.hWnd(), .choice = printer_};
    if (desktop_.ChoosePrinter(record) != kConfirmed) return Unconfirmed();
    printer_ = record.choice;
    printer_.copies = 1;
    return record.choice;
}

FileRecord Cdb::RecordOf(const FileRequest& request) const {
    FileRecord record;
    record.owner = owner_.hWnd();
    record.filter = FilterOf(request.filter, "|");
    record.filterIndex = request.filterIndex;
    record.file = request.fileName;
    record.title = request.title;
    record.defaultExtension = request.defaultExtension;
    record.flags = request.flags;
    return record;
}

Result<ChosenFile> Cdb::Answer(std::int32_t returned, const FileRecord& record) const {
    if (returned != kConfirmed) return Unconfirmed();
    return ChosenFile{record.file, record.fileTitle};
}

tl::unexpected<Error> Cdb::Unconfirmed() const {
    const std::int32_t reason = desktop_.CommDlgExtendedError();
    if (reason != 0) return Fail(reason, "The dialog failed");
    return Fail(kDialogCancelled, "Cancel was selected");
}

}  // namespace kestrel::services
