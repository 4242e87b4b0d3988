#include "platform/qt/QtFileDialogs.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QRegularExpression>

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

bool Exists(const QString& path) {
    return QFileInfo::exists(path);
}

QMessageBox::StandardButton Tell(QFileDialog& dialog, const char* sentence, const QString& name,
                                 QMessageBox::StandardButtons buttons) {
    QMessageBox box(QMessageBox::Warning, dialog.windowTitle(),
                    QFileDialog::tr(sentence).arg(QDir::toNativeSeparators(name)), buttons,
                    &dialog);
    box.setTextFormat(Qt::PlainText);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

// Whether the user may have this name for saving; says why not.
bool MaySaveAs(QFileDialog& dialog, const FileRequest& request, const QString& path) {
    const QFileInfo chosen(path);
    // The desktop library takes quotes as marks between several names.
    const auto* typed = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    const bool quoted = typed != nullptr && typed->text().contains(QLatin1Char('"'));
    const bool wildcards =
        !Exists(path) && chosen.fileName().contains(QRegularExpression(QStringLiteral("[*?]")));
    if (quoted || wildcards) {
        Tell(dialog, QT_TR_NOOP("%1\nThe file name is not valid."),
             quoted ? typed->text() : chosen.fileName(), QMessageBox::Ok);
        return false;
    }
    if (request.pathMustExist && !chosen.absoluteDir().exists()) {
        Tell(dialog,
             QT_TR_NOOP("%1\nDirectory not found.\nPlease verify the correct directory name was "
                        "given."),
             chosen.absolutePath(), QMessageBox::Ok);
        return false;
    }
    if (!request.overwritePrompt || !Exists(path)) return true;
    return Tell(dialog, QT_TR_NOOP("%1 already exists.\nDo you want to replace it?"),
                chosen.fileName(), QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

bool MayOpen(QFileDialog& dialog, const FileRequest& request, const QString& path) {
    if (!request.fileMustExist || Exists(path)) return true;
    Tell(dialog, QT_TR_NOOP("%1\nFile not found.\nPlease verify the correct file name was given."),
         QFileInfo(path).fileName(), QMessageBox::Ok);
    return false;
}

// The name that was chosen, as it is spelled on the disk; empty when the dialog was closed.
QString Choose(QFileDialog& dialog, const FileRequest& request) {
    while (dialog.exec() == QDialog::Accepted) {
        const std::string chosen = dialog.selectedFiles().value(0).toStdString();
        const QString path = QString::fromStdString(system::ResolvePath(chosen));
        const bool opens = dialog.acceptMode() == QFileDialog::AcceptOpen;
        if (opens ? MayOpen(dialog, request, path) : MaySaveAs(dialog, request, path)) {
            return path;
        }
    }
    return {};
}

Result<ChosenFile> Run(QFileDialog& dialog, const FileRequest& request) {
    dialog.setNameFilters(NameFilters(request.filter));
    dialog.selectNameFilter(dialog.nameFilters().value(request.filterIndex - 1));
    dialog.setDefaultSuffix(QString::fromStdString(request.defaultExtension));
    // Names are checked here, where those in other letter case are known to be the same file.
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    // A path may differ in letter case from the file it names; a mere name is only a proposal.
    if (const std::string& name = request.fileName; !name.empty()) {
        const bool isPath = !system::FolderOf(name).empty();
        dialog.selectFile(QString::fromStdString(isPath ? system::ResolvePath(name) : name));
    }
    const QString path = Choose(dialog, request);
    if (path.isEmpty()) return Fail(kDialogCancelled, "Cancel was selected");
    return ChosenFile{path.toStdString(), QFileInfo(path).fileName().toStdString()};
}

}  // namespace

Result<ChosenFile> QtFileDialogs::ShowOpen(const FileRequest& request) {
    QFileDialog dialog(owner_, QString::fromStdString(request.title));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    return Run(dialog, request);
}

Result<ChosenFile> QtFileDialogs::ShowSave(const FileRequest& request) {
    QFileDialog dialog(owner_, QString::fromStdString(request.title));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    return Run(dialog, request);
}

}  // namespace kestrel::qt
