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

// Qt's own dialog in every desktop: it asks about names by the rules of this program, where names
// in other letter case are known to be the same file, and it speaks the program's language.
class NameCheckingDialog : public QFileDialog {
  public:
    NameCheckingDialog(QWidget* owner, const FileRequest& request)
        : QFileDialog(owner, QString::fromStdString(request.title)), request_(request) {
        setOption(QFileDialog::DontUseNativeDialog);
        setOption(QFileDialog::DontConfirmOverwrite);
        setFileMode(QFileDialog::AnyFile);
        setNameFilters(NameFilters(request.filter));
        selectNameFilter(nameFilters().value(request.filterIndex - 1));
        setDefaultSuffix(QString::fromStdString(request.defaultExtension));
        // A path may differ in letter case from the file it names; a mere name is only a proposal.
        if (const std::string& name = request.fileName; !name.empty()) {
            const bool isPath = !system::FolderOf(name).empty();
            selectFile(QString::fromStdString(isPath ? system::ResolvePath(name) : name));
        }
    }

    // The name that was chosen, as it is spelled on the disk.
    QString ChosenPath() const {
        const std::string chosen = selectedFiles().value(0).toStdString();
        return QString::fromStdString(system::ResolvePath(chosen));
    }

  protected:
    void accept() override {
        const QFileInfo chosen(ChosenPath());
        const bool isFolder = chosen.isDir();  // the dialog goes there
        const bool opens = acceptMode() == AcceptOpen;
        if (isFolder || (opens ? MayOpen(chosen) : MaySaveAs(chosen))) QFileDialog::accept();
    }

  private:
    bool MayOpen(const QFileInfo& chosen) {
        if (!request_.fileMustExist || chosen.exists()) return true;
        Tell(tr("%1\nFile not found.\nPlease verify the correct file name was given."),
             chosen.fileName());
        return false;
    }

    bool MaySaveAs(const QFileInfo& chosen) {
        // The library takes quotes as marks between several names.
        const auto* edit = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        const QString typed = edit == nullptr ? chosen.fileName() : edit->text();
        const bool wildcards = typed.contains(QLatin1Char('*')) || typed.contains(QLatin1Char('?'));
        if (typed.contains(QLatin1Char('"')) || (wildcards && !chosen.exists())) {
            Tell(tr("%1\nThe file name is not valid."), typed);
            return false;
        }
        if (request_.pathMustExist && !chosen.absoluteDir().exists()) {
            Tell(
                tr("%1\nDirectory not found.\nPlease verify the correct directory name was given."),
                chosen.absolutePath());
            return false;
        }
        return !request_.overwritePrompt || !chosen.exists() ||
               Tell(tr("%1 already exists.\nDo you want to replace it?"), chosen.fileName(),
                    QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
    }

    int Tell(const QString& sentence, const QString& name,
             QMessageBox::StandardButtons buttons = QMessageBox::Ok) {
        QMessageBox box(QMessageBox::Warning, windowTitle(), sentence.arg(name), buttons, this);
        box.setTextFormat(Qt::PlainText);
        // Return alone must not replace a file.
        if (buttons.testFlag(QMessageBox::No)) box.setDefaultButton(QMessageBox::No);
        return box.exec();
    }

    const FileRequest& request_;
};

Result<ChosenFile> Run(QFileDialog::AcceptMode mode, const FileRequest& request, QWidget* owner) {
    NameCheckingDialog dialog(owner, request);
    dialog.setAcceptMode(mode);
    const QString path = dialog.exec() == QDialog::Accepted ? dialog.ChosenPath() : QString();
    if (path.isEmpty()) return Fail(kDialogCancelled, "Cancel was selected");
    return ChosenFile{path.toStdString(), QFileInfo(path).fileName().toStdString()};
}

}  // namespace

Result<ChosenFile> QtFileDialogs::ShowOpen(const FileRequest& request) {
    return Run(QFileDialog::AcceptOpen, request, owner_);
}

Result<ChosenFile> QtFileDialogs::ShowSave(const FileRequest& request) {
    return Run(QFileDialog::AcceptSave, request, owner_);
}

}  // namespace kestrel::qt
