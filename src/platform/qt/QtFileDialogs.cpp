#include "platform/qt/QtFileDialogs.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>

#include "platform/system/PathText.h"

namespace kestrel::qt {

namespace {

using dialogs::ChosenFile;
using dialogs::FileRequest;

// "Icon Files (*.ico)|*.ico" as the one text that Qt reads a description and its patterns from.
QStringList NameFilters(const std::string& filter) {
    const QStringList parts = QString::fromStdString(filter).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString description = parts[i];
        const QString suffix = QStringLiteral("(%1)").arg(parts[i + 1]);
        if (description.endsWith(suffix)) description.chop(suffix.size());
        filters << description.trimmed() + QLatin1Char(' ') + suffix;
    }
    return filters;
}

// Refuses names that a file cannot get: wildcards, and folders that do not exist.
class NameCheckingDialog : public QFileDialog {
  public:
    using QFileDialog::QFileDialog;

  protected:
    void accept() override {
        if (acceptMode() == AcceptSave && !NameCanBeSaved()) return;
        QFileDialog::accept();
    }

  private:
    bool NameCanBeSaved() {
        const QFileInfo chosen(selectedFiles().value(0));
        auto* name = findChild<QLineEdit*>();
        if (chosen.fileName().contains(QLatin1Char('*')) ||
            chosen.fileName().contains(QLatin1Char('?'))) {
            if (name != nullptr) name->selectAll();
            return false;
        }
        if (chosen.absoluteDir().exists()) return true;
        QMessageBox::warning(this, windowTitle(),
                             QFileDialog::tr("%1\nDirectory not found.\nPlease verify the "
                                             "correct directory name was given.")
                                 .arg(chosen.absolutePath()));
        return false;
    }
};

Result<ChosenFile> Run(QFileDialog& dialog, const FileRequest& request) {
    dialog.setNameFilters(NameFilters(request.filter));
    dialog.selectNameFilter(dialog.nameFilters().value(request.filterIndex - 1));
    dialog.setDefaultSuffix(QString::fromStdString(request.defaultExtension));
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.overwritePrompt);
    // The name may differ in letter case from the file it names.
    if (!request.fileName.empty()) {
        dialog.selectFile(QString::fromStdString(system::ResolvePath(request.fileName)));
    }
    const QString path =
        dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
    if (path.isEmpty()) return Fail(kDialogCancelled, "Cancel was selected");
    return ChosenFile{path.toStdString(), QFileInfo(path).fileName().toStdString()};
}

}  // namespace

Result<ChosenFile> QtFileDialogs::ShowOpen(const FileRequest& request) {
    QFileDialog dialog(owner_, QString::fromStdString(request.title));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(request.fileMustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    return Run(dialog, request);
}

Result<ChosenFile> QtFileDialogs::ShowSave(const FileRequest& request) {
    NameCheckingDialog dialog(owner_, QString::fromStdString(request.title));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    return Run(dialog, request);
}

}  // namespace kestrel::qt
