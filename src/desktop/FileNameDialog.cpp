#include "desktop/FileNameDialog.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QListView>
#include <QSplitter>
#include <QTreeView>
#include <QUrl>

#include "desktop/FilePreview.h"
#include "desktop/ScreenFit.h"
#include "desktop/Text.h"
#include "i18n/Messages.h"
#include "platform/system/PathText.h"

namespace kestrel::desktop {

namespace {

constexpr QSize kRoomForColumns(720, 420);

using services::FilePurpose;
using services::FileRecord;

// Where none is given, that of the dialogs for icons.
FileRecord WithTitle(FileRecord record, FilePurpose purpose) {
    const i18n::Text& title = purpose == FilePurpose::Open ? i18n::kOpenTitle : i18n::kSaveAsTitle;
    if (record.title.empty()) record.title = title.Now();
    return record;
}

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

}  // namespace

FileNameDialog::FileNameDialog(FilePurpose purpose, FileRecord record,
                               services::MessageBoxes& boxes, QWidget* owner)
    : QFileDialog(owner),
      record_(WithTitle(std::move(record), purpose)),
      rules_(boxes, purpose, record_) {
    setWindowTitle(QString::fromStdString(record_.title));
    setOption(DontUseNativeDialog);
    setOption(HideNameFilterDetails);
    setAcceptMode(purpose == FilePurpose::Open ? AcceptOpen : AcceptSave);
    setFileMode(Asks(services::kMultiSelect) ? ExistingFiles : AnyFile);
    setNameFilters(NameFilters(record_.filter));
    selectNameFilter(nameFilters().value(record_.filterIndex - 1));
    ShowFolderAndName();
    MarkPlace();
    MakeReadable();
    AddPreview();
    if (purpose == FilePurpose::Open && !Asks(services::kHideReadOnly)) {
        readOnly_ = new QCheckBox(ToText(i18n::kOpenReadOnly.Now()), this);
        readOnly_->setChecked(Asks(services::kReadOnly));
        layout()->addWidget(readOnly_);
    }
}

// The library keeps the state of the columns, for all its programs.
FileNameDialog::~FileNameDialog() {
    if (columns_ == nullptr) return;
    columns_->setSectionResizeMode(QHeaderView::Interactive);
    columns_->setMinimumSectionSize(-1);
    columns_->setStretchLastSection(true);
}

void FileNameDialog::ShowFolderAndName() {
    const auto resolved = [](const std::string& path) {
        return QString::fromStdString(system::ResolvePath(path));
    };
    if (!record_.initialFolder.empty()) setDirectory(resolved(record_.initialFolder));
    // A path may differ in letter case from the file it names; a mere name is only a proposal.
    const bool isPath = !system::FolderOf(record_.file).empty();
    selectFile(isPath ? resolved(record_.file) : QString::fromStdString(record_.file));
}

// The library restores its places after it has shown the folder, and shows no folder twice.
void FileNameDialog::MarkPlace() {
    constexpr int kUrl = Qt::UserRole + 1;  // in its model of places
    const auto* places = findChild<QListView*>(QStringLiteral("sidebar"));
    if (places == nullptr) return;
    const QUrl folder = QUrl::fromLocalFile(directory().absolutePath());
    for (int row = 0; row < places->model()->rowCount(); ++row) {
        const QModelIndex place = places->model()->index(row, 0);
        if (place.data(kUrl).toUrl() == folder)
            places->selectionModel()->select(place, QItemSelectionModel::ClearAndSelect);
    }
}

// Where icons are chosen: beside the files, which the grid of the library's dialog has in its
// second row.
void FileNameDialog::AddPreview() {
    constexpr int kRowOfFiles = 1;
    auto* grid = qobject_cast<QGridLayout*>(layout());
    const auto offers = [&](const char* pattern) {
        return record_.filter.find(pattern) != std::string::npos;
    };
    const QSize room = RoomOnScreen(*this);
    // A small screen is left to the names.
    if (room.width() < kRoomForColumns.width()) return;
    if (grid == nullptr || !(offers("*.ico") || offers("*.icl"))) return;
    auto* preview = new FilePreview(this);
    grid->addWidget(preview, kRowOfFiles, grid->columnCount());
    resize(QSize(width() + preview->minimumWidth(), height()).boundedTo(room));
    connect(this, &QFileDialog::currentChanged, preview,
            [preview](const QString& path) { preview->Show(path.toStdString()); });
    connect(this, &QFileDialog::directoryEntered, preview, [preview] { preview->Show({}); });
    if (const QStringList named = selectedFiles(); !named.isEmpty())
        preview->Show(named.front().toStdString());
}

// The library cuts its side bar and the dates.
void FileNameDialog::MakeReadable() {
    constexpr int kSideBar = 120;  // pixels
    FitOnScreen(*this);
    resize(size().expandedTo(kRoomForColumns).boundedTo(RoomOnScreen(*this)));
    if (const auto* splitter = findChild<QSplitter*>())
        splitter->widget(0)->setMinimumWidth(kSideBar);
    if (const auto* files = findChild<QTreeView*>()) {
        columns_ = files->header();
        columns_->setStretchLastSection(false);
        columns_->setSectionResizeMode(QHeaderView::ResizeToContents);
        columns_->setSectionResizeMode(0, QHeaderView::Stretch);
        // Where large text leaves less, the columns are scrolled.
        constexpr int kLeastLetters = 10;
        columns_->setMinimumSectionSize(kLeastLetters * fontMetrics().averageCharWidth());
    }
}

void FileNameDialog::accept() {
    std::vector<std::string> paths;
    for (const QString& path : selectedFiles())
        paths.push_back(QDir::cleanPath(path).toStdString());
    auto* name = findChild<QLineEdit*>();
    if (paths.empty() || name == nullptr) return;
    switch (rules_.Judge(paths, name->text().toStdString())) {
        case services::FileNameRules::Verdict::Stay:
            return;
        case services::FileNameRules::Verdict::Enter:
            EnterFolder(QString::fromStdString(paths[0]), *name);
            return;
        case services::FileNameRules::Verdict::Take:
            NoteAnswer(paths);
            done(Accepted);
    }
}

// A name that is proposed or typed stays for the folder that is entered; the folder's own goes.
void FileNameDialog::EnterFolder(const QString& folder, QLineEdit& name) {
    if (QDir::cleanPath(directory().absoluteFilePath(name.text())) == folder) name.clear();
    setDirectory(folder);
}

// Counted from 1. Some versions of the library tell the filter without its patterns.
int FileNameDialog::SelectedFilter() const {
    const QString shown = selectedNameFilter();
    int index = 0;
    for (const QString& filter : nameFilters()) {
        ++index;
        if (filter == shown || filter.startsWith(shown + QLatin1String(" ("))) break;
    }
    return index;
}

void FileNameDialog::NoteAnswer(const std::vector<std::string>& paths) {
    services::AnswerIn(record_, paths);
    record_.filterIndex = SelectedFilter();
    if (readOnly_ == nullptr) return;
    record_.flags &= ~services::kReadOnly;
    if (readOnly_->isChecked()) record_.flags |= services::kReadOnly;
}

}  // namespace kestrel::desktop
