#include "platform/qt/QtDesktopDialogs.h"

#include <QColorDialog>
#include <QGuiApplication>
#include <QPrintDialog>
#include <QPrinter>

#include "platform/qt/Pictures.h"

namespace kestrel::qt {

namespace {

using dialogs::ColorRecord;
using dialogs::CustomColors;
using dialogs::FileRecord;
using dialogs::PrinterRecord;
using dialogs::WindowHandle;

constexpr std::int32_t kCancelled = 0;

QWidget* WindowOf(WindowHandle owner) {
    return owner == dialogs::kNoOwner ? nullptr : QWidget::find(static_cast<WId>(owner));
}

// Whether the user confirmed. A window manager may forget who comes next when a dialog goes together
// with a box over it.
bool Ask(QDialog& dialog) {
    const bool confirmed = dialog.exec() == QDialog::Accepted;
    if (dialog.parentWidget() != nullptr) dialog.parentWidget()->activateWindow();
    return confirmed;
}

}  // namespace

std::int32_t QtDesktopDialogs::GetOpenFileName(FileRecord& record) {
    return ChooseFile(FileNameDialog::AcceptOpen, record);
}

std::int32_t QtDesktopDialogs::GetSaveFileName(FileRecord& record) {
    return ChooseFile(FileNameDialog::AcceptSave, record);
}

std::int32_t QtDesktopDialogs::ChooseFile(FileNameDialog::AcceptMode mode, FileRecord& record) {
    if (record.initialFolder.empty()) record.initialFolder = lastFolder_;
    FileNameDialog dialog(mode, record, WindowOf(record.owner));
    if (!Ask(dialog)) return kCancelled;
    dialog.AnswerIn(record);
    lastFolder_ = dialog.ChosenFolder();
    return dialogs::kConfirmed;
}

std::int32_t QtDesktopDialogs::ChooseColor(ColorRecord& record) {
    // The library has one row of custom colours for all dialogs.
    for (std::size_t i = 0; i < record.customColors.size(); ++i)
        QColorDialog::setCustomColor(static_cast<int>(i), ToColor(record.customColors[i]));
    QColorDialog dialog(WindowOf(record.owner));
    // The desktop's own dialog speaks the desktop's language.
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    const bool preset = (record.flags & dialogs::kInitialColor) != 0;
    dialog.setCurrentColor(ToColor(preset ? record.color : gdi::kBlack));
    if (!Ask(dialog)) return kCancelled;
    record.color = ToColorRef(dialog.selectedColor());
    for (std::size_t i = 0; i < record.customColors.size(); ++i)
        record.customColors[i] = ToColorRef(QColorDialog::customColor(static_cast<int>(i)));
    return dialogs::kConfirmed;
}

std::int32_t QtDesktopDialogs::ChoosePrinter(PrinterRecord& record) {
    QPrinter printer;
    if (!record.printer.empty()) printer.setPrinterName(QString::fromStdString(record.printer));
    if (!record.file.empty()) printer.setOutputFileName(QString::fromStdString(record.file));
    printer.setCopyCount(record.copies);
    QPrintDialog dialog(&printer, WindowOf(record.owner));
    // There is one page, and each copy is a job of its own.
    dialog.setOptions(QAbstractPrintDialog::PrintToFile);
    if (!Ask(dialog)) return kCancelled;
    record.printer = printer.printerName().toStdString();
    record.file = printer.outputFileName().toStdString();
    record.copies = printer.copyCount();
    return dialogs::kConfirmed;
}

gdi::COLORREF QtDesktopDialogs::GetSysColor(int role) const {
    constexpr QPalette::ColorRole kRoles[] = {QPalette::Mid,
                                              QPalette::Dark,
                                              QPalette::Highlight,
                                              QPalette::Mid,
                                              QPalette::Window,
                                              QPalette::Base,
                                              QPalette::WindowText,
                                              QPalette::ButtonText,
                                              QPalette::Text,
                                              QPalette::HighlightedText,
                                              QPalette::Window,
                                              QPalette::Window,
                                              QPalette::Dark,
                                              QPalette::Highlight,
                                              QPalette::HighlightedText,
                                              QPalette::Button};
    const bool known = role >= 0 && role < static_cast<int>(std::size(kRoles));
    return known ? ToColorRef(QGuiApplication::palette().color(kRoles[role])) : gdi::kBlack;
}

}  // namespace kestrel::qt
