#pragma once

#include <QCheckBox>
#include <QFileDialog>
#include <QMessageBox>

#include "services/DesktopDialogs.h"

namespace kestrel::desktop {

// Qt's own file dialog on every desktop: it asks about names by the rules of this program, where
// names in other letter case are known to be the same file, and it speaks the program's language.
class FileNameDialog : public QFileDialog {
  public:
    FileNameDialog(AcceptMode mode, const services::FileRecord& record, QWidget* owner);

    // What the user chose, once the dialog is accepted. Names are spelled as on the disk.
    void AnswerIn(services::FileRecord& record) const;
    std::string ChosenFolder() const;

  protected:
    void accept() override;

  private:
    bool Asks(std::uint32_t flag) const { return (record_.flags & flag) != 0; }
    QString Answer() const;
    QString WithExtension(const QString& path) const;
    bool IsName(const QFileInfo& chosen);
    bool MayOpen(const QFileInfo& chosen);
    bool MaySaveAs(const QFileInfo& chosen);
    bool FitsBuffer();
    int Tell(const QString& sentence, const QString& name,
             QMessageBox::StandardButtons buttons = QMessageBox::Ok);

    const services::FileRecord record_;
    QCheckBox* readOnly_ = nullptr;
    // What the user chose last, spelled as on the disk and with its extension.
    QStringList chosen_;
};

}  // namespace kestrel::desktop
