#pragma once

#include <QCheckBox>
#include <QFileDialog>
#include <QHeaderView>

#include "services/FileNameRules.h"

class QLineEdit;

namespace kestrel::desktop {

// The desktop library's own file dialog, on every desktop: it takes names by the rules of this
// program and speaks the program's language.
class FileNameDialog : public QFileDialog {
  public:
    FileNameDialog(services::FilePurpose purpose, services::FileRecord record,
                   services::MessageBoxes& boxes, QWidget* owner);
    FileNameDialog(const FileNameDialog&) = delete;
    FileNameDialog& operator=(const FileNameDialog&) = delete;
    ~FileNameDialog() override;

    // What the user chose, once the dialog is accepted.
    const services::FileRecord& Record() const { return record_; }

  protected:
    void accept() override;

  private:
    bool Asks(std::uint32_t flag) const { return (record_.flags & flag) != 0; }
    void ShowFolderAndName();
    void MarkPlace();
    void AddPreview();
    void MakeReadable();
    void EnterFolder(const QString& folder, QLineEdit& name);
    int SelectedFilter() const;
    void NoteAnswer(const std::vector<std::string>& paths);

    services::FileRecord record_;
    services::FileNameRules rules_;
    QHeaderView* columns_ = nullptr;
    QCheckBox* readOnly_ = nullptr;
};

}  // namespace kestrel::desktop
