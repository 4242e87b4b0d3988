#include "desktop/FileNameDialog.h"

#include <QComboBox>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLayout>
#include <QLineEdit>
#include <QScreen>
#include <QTreeView>
#include <algorithm>

#include "platform/system/Characters.h"
#include "platform/system/PathText.h"

namespace kestrel::desktop {

namespace {

using services::FileRecord;

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

// Sizes and dates in their own width, and the rest for the names: the library cuts the dates.
void FitColumns(QTreeView& files) {
    constexpr int kNarrowestNames = 160;  // pixels
    int rest = files.viewport()->width();
    for (int column = 1; column < files.header()->count(); ++column) {
        files.resizeColumnToContents(column);
        rest -= files.columnWidth(column);
    }
    files.setColumnWidth(0, std::max(rest, kNarrowestNames));
}

void ShowColumnsWhole(QFileDialog& dialog) {
    constexpr QSize kRoomForColumns(680, 0);
    dialog.resize(
        dialog.size().expandedTo(kRoomForColumns).boundedTo(dialog.screen()->availableSize()));
    auto* files = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (files == nullptr) return;
    const auto* model = qobject_cast<QFileSystemModel*>(files->model());
    const auto fit = [files] { FitColumns(*files); };
    if (model != nullptr) {
        QObject::connect(model, &QFileSystemModel::directoryLoaded, files, fit,
                         Qt::SingleShotConnection);
    }
}

}  // namespace

FileNameDialog::FileNameDialog(AcceptMode mode, const FileRecord& record, QWidget* owner)
    : QFileDialog(owner, QString::fromStdString(record.title)), record_(record) {
    setOption(QFileDialog::DontUseNativeDialog);
    setOption(QFileDialog::DontConfirmOverwrite);
    setOption(QFileDialog::HideNameFilterDetails);
    setAcceptMode(mode);
    setFileMode(Asks(services::kMultiSelect) ? QFileDialog::ExistingFiles : QFileDialog::AnyFile);
    setNameFilters(NameFilters(record.filter));
    selectNameFilter(nameFilters().value(record.filterIndex - 1));
    if (!record.initialFolder.empty())
        setDirectory(Resolved(QString::fromStdString(record.initialFolder)));
    // A path may differ in letter case from the file it names; a mere name is only a proposal.
    if (const QString name = QString::fromStdString(record.file); !name.isEmpty()) {
        const bool isPath = !system::FolderOf(record.file).empty();
        selectFile(isPath ? Resolved(name) : name);
    }
    ShowColumnsWhole(*this);
    if (mode == AcceptOpen && !Asks(services::kHideReadOnly)) {
        readOnly_ = new QCheckBox(tr("Open as &read-only"), this);
        readOnly_->setChecked(Asks(services::kReadOnly));
        layout()->addWidget(readOnly_);
    }
}

void FileNameDialog::AnswerIn(FileRecord& record) const {
    record.file = Answer().toStdString();
    record.fileTitle =
        chosen_.size() > 1 ? "" : QFileInfo(chosen_.value(0)).fileName().toStdString();
    if (const auto* filters = findChild<QComboBox*>(QStringLiteral("fileTypeCombo")))
        record.filterIndex = filters->currentIndex() + 1;
    if (readOnly_ == nullptr) return;
    record.flags &= ~services::kReadOnly;
    if (readOnly_->isChecked()) record.flags |= services::kReadOnly;
}

std::string FileNameDialog::ChosenFolder() const {
    return QFileInfo(chosen_.value(0)).path().toStdString();
}

// The path, or the folder and the names.
QString FileNameDialog::Answer() const {
    if (chosen_.size() < 2) return chosen_.value(0);
    QString answer = QFileInfo(chosen_[0]).path() + QChar(QChar::Null);
    for (const QString& path : chosen_)
        answer += QFileInfo(path).fileName() + QChar(QChar::Null);
    return answer;
}

// The library would add the extension also to an existing file that is to be opened and has none.
QString FileNameDialog::WithExtension(const QString& path) const {
    const QFileInfo chosen(path);
    QString extension = QString::fromStdString(record_.defaultExtension);
    if (extension.isEmpty() || chosen.fileName().contains(QLatin1Char('.')) || chosen.isDir() ||
        (acceptMode() == AcceptOpen && chosen.exists())) {
        return path;
    }
    if (extension.startsWith(QLatin1Char('.'))) extension.remove(0, 1);
    return Resolved(path + QLatin1Char('.') + extension);
}

void FileNameDialog::accept() {
    chosen_ = selectedFiles();
    for (QString& path : chosen_)
        path = WithExtension(Resolved(QDir::cleanPath(path)));
    const bool goesThere = std::all_of(chosen_.begin(), chosen_.end(),
                                       [](const QString& path) { return QFileInfo(path).isDir(); });
    const auto mayTake = [this](const QString& path) {
        const QFileInfo chosen(path);
        return IsName(chosen) && (acceptMode() == AcceptOpen ? MayOpen(chosen) : MaySaveAs(chosen));
    };
    if (goesThere || (std::all_of(chosen_.begin(), chosen_.end(), mayTake) && FitsBuffer()))
        QFileDialog::accept();
}

bool FileNameDialog::MayOpen(const QFileInfo& chosen) {
    if (!Asks(services::kFileMustExist) || chosen.exists()) return true;
    Tell(tr("%1\nFile not found.\nPlease verify the correct file name was given."),
         chosen.fileName());
    return false;
}

bool FileNameDialog::IsName(const QFileInfo& chosen) {
    const auto* edit = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    const QString typed = edit == nullptr ? chosen.fileName() : edit->text();
    const bool wildcards = typed.contains(QLatin1Char('*')) || typed.contains(QLatin1Char('?'));
    // The library takes quotes as marks between several names.
    const bool several = acceptMode() == AcceptSave && typed.contains(QLatin1Char('"'));
    if (!several && (!wildcards || chosen.exists())) return true;
    Tell(tr("%1\nThe file name is not valid."), typed);
    return false;
}

bool FileNameDialog::MaySaveAs(const QFileInfo& chosen) {
    if (Asks(services::kPathMustExist) && !chosen.absoluteDir().exists()) {
        Tell(tr("%1\nDirectory not found.\nPlease verify the correct directory name was given."),
             chosen.absolutePath());
        return false;
    }
    return !Asks(services::kOverwritePrompt) || !chosen.exists() ||
           Tell(tr("%1 already exists.\nDo you want to replace it?"), chosen.fileName(),
                QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

bool FileNameDialog::FitsBuffer() {
    const QString answer = Answer();
    if (record_.maxFile == 0 || system::CountCharacters(answer.toStdString()) < record_.maxFile)
        return true;
    Tell(tr("%1\nThe file name is too long."), QFileInfo(chosen_.value(0)).fileName());
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

}  // namespace kestrel::desktop
