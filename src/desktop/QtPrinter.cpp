#include "desktop/QtPrinter.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintEngine>
#include <cerrno>

#include "desktop/Pictures.h"
#include "i18n/Messages.h"

namespace kestrel::desktop {

namespace {

// Names and values in turn, as the print dialog's properties leave them with the print engine. The
// key is the library's own.
std::vector<std::pair<std::string, std::string>> OptionsOf(const QPrinter& printer) {
    constexpr auto kOptions = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xfe00);
    std::vector<std::pair<std::string, std::string>> options{
        {"media", printer.pageLayout().pageSize().key().toStdString()}};
    const QStringList words = printer.printEngine()->property(kOptions).toStringList();
    for (qsizetype i = 0; i + 1 < words.size(); i += 2)
        options.emplace_back(words[i].toStdString(), words[i + 1].toStdString());
    return options;
}

}  // namespace

void QtPrinter::Use(QPrinter& printer) {
    const bool toFile = printer.outputFormat() == QPrinter::PdfFormat;
    job_ = {.queue = toFile ? "" : printer.printerName().toStdString(),
            .title = "",
            .options = OptionsOf(printer),
            .pdf = ""};
    file_ = toFile ? printer.outputFileName().toStdString() : "";
    layout_ = printer.pageLayout();
    inColor_ = printer.colorMode() == QPrinter::Color;
    page_.clear();
}

void QtPrinter::UseNone() {
    job_ = {};
    file_.clear();
}

// The library writes PDF files wherever it is built to do so.
bool QtPrinter::IsInstalled() const {
    return QT_CONFIG(pdf);
}

void QtPrinter::SetOrientation(services::Orientation orientation) {
    layout_.setOrientation(orientation == services::Orientation::Portrait ? QPageLayout::Portrait
                                                                          : QPageLayout::Landscape);
}

gdi::Size QtPrinter::PrintableArea() const {
    const QRect area = layout_.paintRectPixels(kDotsPerInch);
    return {area.width(), area.height()};
}

void QtPrinter::FillRectangle(gdi::Rect area, gdi::COLORREF color) {
    const QColor exact = ToColor(color);
    const int grey = qGray(exact.rgb());
    page_.push_back({{area.left, area.top, area.width, area.height},
                     inColor_ ? exact : QColor(grey, grey, grey)});
}

QByteArray QtPrinter::DocumentBytes(const std::string& title) const {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setResolution(kDotsPerInch);
    writer.setPageLayout(layout_);
    writer.setTitle(QString::fromStdString(title));
    QPainter painter(&writer);
    for (const auto& [area, color] : page_)
        painter.fillRect(area, color);
    painter.end();
    return bytes.data();
}

Result<void> QtPrinter::EndDocument(const std::string& title) {
    const QByteArray document = DocumentBytes(title);
    page_.clear();
    // Its server was silent, or gone, when the printer was chosen.
    if (job_.queue.empty() && file_.empty())
        return Fail(ENOENT, std::string(i18n::kPrintServerIsSilent.Now()));
    if (!job_.queue.empty()) {
        PrintJob job = job_;
        job.title = title;
        job.pdf = document.toStdString();
        return SendToPrinter(job);
    }
    const auto written =
        files_.ReplaceFile(file_, {reinterpret_cast<const std::uint8_t*>(document.data()),
                                   static_cast<std::size_t>(document.size())});
    if (!written) return tl::unexpected(written.error());
    return {};
}

}  // namespace kestrel::desktop
