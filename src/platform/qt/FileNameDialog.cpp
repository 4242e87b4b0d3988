#include "platform/qt/FileNameDialog.h"

#include <QComboBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLayout>
#include <QLineEdit>
#include <QTreeView>
#include <algorithm>

#include "platform/system/PathText.h"

namespace kestrel::qt {

namespace {

using dialogs::FileRecord;

// Each description with its patterns behind it, which the dialog does not show.
QStringList NameFilters(const std::string& filter) {
    const QStringList parts = QString::fromStdString(filter).split(QChar(QChar::Null));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size() && !parts[i].isEmpty(); i += 2) {
        QString patterns = parts[i + 1];
        // Names need not have a dot here.
        patterns.replace(QLatin1Char(';'), QLatin1Char(' '))
            .replace(QLatin1String("*.*"), QLatin1String("*"));
        filters << QStringLiteral("%1 (%2)").arg(parts[i], patterns);
    }
    return filters;
}

QString Resolved(const QString& path) {
    return QString::fromStdString(system::ResolvePath(path.toStdString()));
}

// Of the columns beside the names the last was cut.
void ShowDatesWhole(const QFileDialog& dialog) {
    const auto* files = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (files == nullptr) return;
    files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

}  // namespace

FileNameDialog::FileNameDialog(AcceptMode mode, const FileRecord& record, QWidget* owner)
    : QFileDialog(owner, QString::fromStdString(record.title)), record_(record) {
    setOption(QFileDialog::DontUseNativeDialog);
    setOption(QFileDialog::DontConfirmOverwrite);
    setOption(QFileDialog::HideNameFilterDetails);
    setAcceptMode(mode);
    setFileMode(Asks(dialogs::kMultiSelect) ? QFileDialog::ExistingFiles : QFileDialog::AnyFile);
    setNameFilters(NameFilters(record.filter));
    selectNameFilter(nameFilters().value(record.filterIndex - 1));
    // The library would add it to the name of an existing file that has none.
    if (mode == AcceptSave) setDefaultSuffix(QString::fromStdString(record.defaultExtension));
    if (!record.initialFolder.empty())
        setDirectory(Resolved(QString::fromStdString(record.initialFolder)));
    // A path may differ in letter case from the file it names; a mere name is only a proposal.
    if (const QString name = QString::fromStdString(record.file); !name.isEmpty()) {
        const bool isPath = !system::FolderOf(record.file).empty();
        selectFile(isPath ? Resolved(name) : name);
    }
    ShowDatesWhole(*this);
    if (mode == AcceptOpen && !Asks(dialogs::kHideReadOnly)) {
        readOnly_ = new QCheckBox(tr("Open as &read-only"), this);
        readOnly_->setChecked(Asks(dialogs::kReadOnly));
        layout()->addWidget(readOnly_);
    }
}

void FileNameDialog::AnswerIn(FileRecord& record) const {
    const QStringList paths = ChosenPaths();
    const QFileInfo first(paths.value(0));
    record.file = first.filePath().toStdString();
    record.fileTitle = first.fileName().toStdString();
    if (paths.size() > 1) {
        record.file = first.path().toStdString();
        for (const QString& path : paths)
            record.file += '\0' + QFileInfo(path).fileName().toStdString();
        record.file += '\0';
        record.fileTitle.clear();
    }
    if (const auto* filters = findChild<QComboBox*>(QStringLiteral("fileTypeCombo")))
        record.filterIndex = filters->currentIndex() + 1;
    if (readOnly_ == nullptr) return;
    record.flags &= ~dialogs::kReadOnly;
    if (readOnly_->isChecked()) record.flags |= dialogs::kReadOnly;
}

std::string FileNameDialog::ChosenFolder() const {
    return QFileInfo(ChosenPaths().value(0)).path().toStdString();
}

QStringList FileNameDialog::ChosenPaths() const {
    QStringList paths = selectedFiles();
    std::transform(paths.begin(), paths.end(), paths.begin(), [this](const QString& path) {
        return WithExtension(Resolved(QDir::cleanPath(path)));
    });
    return paths;
}

QString FileNameDialog::WithExtension(const QString& path) const {
    const QFileInfo chosen(path);
    QString extension = QString::fromStdString(record_.defaultExtension);
    if (extension.isEmpty() || chosen.exists() || chosen.fileName().contains(QLatin1Char('.')))
        return path;
    if (extension.startsWith(QLatin1Char('.'))) extension.remove(0, 1);
    return Resolved(path + QLatin1Char('.') + extension);
}

void FileNameDialog::accept() {
    const QStringList paths = ChosenPaths();
    const bool goesThere = std::all_of(paths.begin(), paths.end(),
                                       [](const QString& path) { return QFileInfo(path).isDir(); });
    const auto mayTake = [this](const QString& path) {
        const QFileInfo chosen(path);
        return acceptMode() == AcceptOpen ? MayOpen(chosen) : MaySaveAs(chosen);
    };
    if (goesThere || (std::all_of(paths.begin(), paths.end(), mayTake) && FitsBuffer()))
        QFileDialog::accept();
}

bool FileNameDialog::MayOpen(const QFileInfo& chosen) {
    if (!Asks(dialogs::kFileMustExist) || chosen.exists()) return true;
    Tell(tr("%1\nFile not found.\nPlease verify the correct file name was given."),
         chosen.fileName());
    return false;
}

bool FileNameDialog::MaySaveAs(const QFileInfo& chosen) {
    // The library takes quotes as marks between several names.
    const auto* edit = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    const QString typed = edit == nullptr ? chosen.fileName() : edit->text();
    const bool wildcards = typed.contains(QLatin1Char('*')) || typed.contains(QLatin1Char('?'));
    if (typed.contains(QLatin1Char('"')) || (wildcards && !chosen.exists())) {
        Tell(tr("%1\nThe file name is not valid."), typed);
        return false;
    }
    if (Asks(dialogs::kPathMustExist) && !chosen.absoluteDir().exists()) {
        Tell(tr("%1\nDirectory not found.\nPlease verify the correct directory name was given."),
             chosen.absolutePath());
        return false;
    }
    return !Asks(dialogs::kOverwritePrompt) || !chosen.exists() ||
           Tell(tr("%1 already exists.\nDo you want to replace it?"), chosen.fileName(),
                QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

bool FileNameDialog::FitsBuffer() {
    FileRecord answer = record_;
    AnswerIn(answer);
    const QString file = QString::fromStdString(answer.file);
    const auto characters = static_cast<std::size_t>(file.toUcs4().size());
    if (record_.maxFile == 0 || characters < record_.maxFile) return true;
    Tell(tr("%1\nThe file name is too long."), QString::fromStdString(answer.fileTitle));
    return false;
}

int FileNameDialog::Tell(const QString& sentence, const QString& name,
                         QMessageBox::StandardButtons buttons) {
    QMessageBox box(QMessageBox::Warning, windowTitle(), sentence.arg(name), buttons, this);
    box.setTextFormat(Qt::PlainText);
    // Return alone must not replace a file.
    if (buttons.testFlag(QMessageBox::No)) box.setDefaultButton(QMessageBox::No);
    return box.exec();
}

}  // namespace kestrel::qt
