#include "desktop/PrinterDialog.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QTimer>
#include <cerrno>
#include <filesystem>

#include "i18n/Messages.h"

namespace kestrel::desktop {

namespace {

bool IsSpecial(const QLineEdit& file) {
    std::error_code unknown;
    const auto kind = std::filesystem::status(file.text().toStdString(), unknown).type();
    return kind == std::filesystem::file_type::fifo || kind == std::filesystem::file_type::socket ||
           kind == std::filesystem::file_type::character ||
           kind == std::filesystem::file_type::block;
}

}  // namespace

PrinterDialog::Silence PrinterDialog::AvoidSilentServer() {
    const WaitCursor wait;
    return PrintServerAnswers() ? nullptr : std::make_unique<NoPrintServer>();
}

PrinterDialog::PrinterDialog(QPrinter& printer, Silence& silence, services::MessageBoxes& boxes,
                             QWidget* owner)
    : QPrintDialog(&printer, owner), silence_(silence), boxes_(boxes) {
    setOptions(PrintToFile | PrintShowPageSize);
    // Once the library has shown them all.
    QTimer::singleShot(0, this, [this] {
        HideWhatNeedsPages();
        KeepFromSpecialFiles();
    });
}

void PrinterDialog::accept() {
    if (!silence_) silence_ = AvoidSilentServer();
    QPrintDialog::accept();
}

// There is one page.
void PrinterDialog::HideWhatNeedsPages() {
    for (const char* name : {"gbPrintRange", "reverse", "duplex"}) {
        if (auto* choice = findChild<QWidget*>(QLatin1String(name))) choice->hide();
    }
}

// The library opens files beside the name that is typed, to complete it, and the file itself to
// see whether it can be written. A pipe would keep it for ever.
void PrinterDialog::KeepFromSpecialFiles() {
    auto* file = findChild<QLineEdit*>(QStringLiteral("filename"));
    auto* buttons = findChild<QDialogButtonBox*>();
    if (file == nullptr || buttons == nullptr) return;
    file->setCompleter(nullptr);
    disconnect(buttons, &QDialogButtonBox::accepted, this, nullptr);
    connect(buttons, &QDialogButtonBox::accepted, this, [this, file] {
        if (file->isVisible() && IsSpecial(*file)) {
            boxes_.Show(services::BoxIcon::Exclamation, services::BoxButtons::Ok,
                        std::string(i18n::ReasonOf(EINVAL, "")),
                        std::string(i18n::kErrorTitle.Now()));
        } else if (!QMetaObject::invokeMethod(this, "_q_checkFields")) {
            accept();
        }
    });
}

}  // namespace kestrel::desktop
