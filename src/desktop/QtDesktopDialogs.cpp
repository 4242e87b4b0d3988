#include "desktop/QtDesktopDialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QElapsedTimer>
#include <QLocale>
#include <QMouseEvent>
#include <QPrinter>
#include <filesystem>
#include <optional>

#include "desktop/Pictures.h"
#include "desktop/PrinterDialog.h"
#include "desktop/ScreenFit.h"
#include "i18n/Language.h"

namespace kestrel::desktop {

namespace {

using services::ColorRecord;
using services::CustomColors;
using services::FilePurpose;
using services::FileRecord;
using services::PrinterRecord;
using services::WindowHandle;

constexpr std::int32_t kCancelled = 0;

QWidget* WindowOf(WindowHandle owner) {
    return owner == services::kNoOwner ? nullptr : QWidget::find(static_cast<WId>(owner));
}

// The library has one row of custom colours for all programs and keeps it in a file; while this
// lives it holds the colours of one dialog.
class LibrarysCustomColors {
  public:
    explicit LibrarysCustomColors(const CustomColors& colors) : before_(Now()) { Set(colors); }
    LibrarysCustomColors(const LibrarysCustomColors&) = delete;
    LibrarysCustomColors& operator=(const LibrarysCustomColors&) = delete;
    ~LibrarysCustomColors() { Set(before_); }

    static CustomColors Now() {
        CustomColors colors{};
        int index = 0;
        for (gdi::COLORREF& color : colors)
            color = ToColorRef(QColorDialog::customColor(index++));
        return colors;
    }

  private:
    static void Set(const CustomColors& colors) {
        int index = 0;
        for (const gdi::COLORREF color : colors)
            QColorDialog::setCustomColor(index++, ToColor(color));
    }

    CustomColors before_;
};

// A dialog that a click opens comes up under the pointer. When the click was the first of a quick
// pair, the second press is not meant for the dialog.
class SecondPressGuard : public QObject {
  public:
    SecondPressGuard() : clicked_(QCursor::pos()) {
        sinceClick_.start();
        QCoreApplication::instance()->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* /*target*/, QEvent* event) override {
        // The library reports the press, and then that it was the second one.
        if (event->type() != QEvent::MouseButtonPress &&
            event->type() != QEvent::MouseButtonDblClick) {
            return false;
        }
        const QPoint at = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
        return sinceClick_.elapsed() < QApplication::doubleClickInterval() &&
               (at - clicked_).manhattanLength() < QApplication::startDragDistance();
    }

  private:
    QPoint clicked_;
    QElapsedTimer sinceClick_;
};

// Whether the user confirmed. A window manager may forget who comes next when a dialog goes
// together with a box over it.
bool Ask(QDialog& dialog) {
    const SecondPressGuard guard;
    const bool confirmed = dialog.exec() == QDialog::Accepted;
    if (dialog.parentWidget() != nullptr) dialog.parentWidget()->activateWindow();
    return confirmed;
}

}  // namespace

std::int32_t QtDesktopDialogs::GetOpenFileName(FileRecord& record) {
    return ChooseFile(FilePurpose::Open, record);
}

std::int32_t QtDesktopDialogs::GetSaveFileName(FileRecord& record) {
    return ChooseFile(FilePurpose::Save, record);
}

std::int32_t QtDesktopDialogs::ChooseFile(FilePurpose purpose, FileRecord& record) {
    if (record.initialFolder.empty()) record.initialFolder = lastFolder_;
    // The library words the kinds of files by the default locale.
    QLocale::setDefault(i18n::UiLanguage() == i18n::kChinese
                            ? QLocale(QLocale::Chinese, QLocale::China)
                            : QLocale(QLocale::English));
    FileNameDialog dialog(purpose, record, boxes_, WindowOf(record.owner));
    if (!Ask(dialog)) return kCancelled;
    record = dialog.Record();
    // Several files come with their folder in front.
    const bool isOne = !record.fileTitle.empty();
    const std::filesystem::path chosen(record.file.c_str());
    lastFolder_ = (isOne ? chosen.parent_path() : chosen).string() + '/';
    return services::kConfirmed;
}

std::int32_t QtDesktopDialogs::ChooseColor(ColorRecord& record) {
    QColorDialog dialog(WindowOf(record.owner));
    // Ends before the dialog, which writes the row to the file.
    const LibrarysCustomColors row(record.customColors);
    // The desktop's own dialog speaks the desktop's language.
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    const bool preset = (record.flags & services::kInitialColor) != 0;
    dialog.setCurrentColor(ToColor(preset ? record.color : gdi::kBlack));
    FitOnScreen(dialog);
    if (!Ask(dialog)) return kCancelled;
    record.color = ToColorRef(dialog.selectedColor());
    record.customColors = LibrarysCustomColors::Now();
    return services::kConfirmed;
}

std::int32_t QtDesktopDialogs::ChoosePrinter(PrinterRecord& record) {
    std::optional<WaitCursor> wait(std::in_place);
    PrinterDialog::Silence silence = PrinterDialog::AvoidSilentServer();
    QPrinter printer(QPrinter::HighResolution);
    auto& [name, file, copies] = record.choice;
    if (!name.empty()) printer.setPrinterName(QString::fromStdString(name));
    if (!file.empty()) printer.setOutputFileName(QString::fromStdString(file));
    printer.setCopyCount(copies);
    // Else the library takes a printer that does not say so to print in grey.
    printer.setColorMode(QPrinter::Color);
    PrinterDialog dialog(printer, silence, boxes_, WindowOf(record.owner));
    wait.reset();
    FitOnScreen(dialog);
    if (!Ask(dialog)) return kCancelled;
    printer_.Use(printer);
    if (silence && printer.outputFormat() != QPrinter::PdfFormat) printer_.UseNone();
    name = printer.printerName().toStdString();
    file = printer.outputFileName().toStdString();
    copies = printer.copyCount();
    return services::kConfirmed;
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

}  // namespace kestrel::desktop
