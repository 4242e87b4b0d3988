#pragma once

#include <QFileDialog>

#include "platform/dialogs/FileDialogs.h"

namespace kestrel::qt {

// The desktop's open and save dialogs. A dialog opens in the folder that was used last.
class QtFileDialogs : public dialogs::FileDialogs {
  public:
    Result<dialogs::ChosenFile> ShowOpen(const dialogs::FileRequest& request) override;
    Result<dialogs::ChosenFile> ShowSave(const dialogs::FileRequest& request) override;

    // Dialogs are modal to this window from now on.
    void SetOwner(QWidget* owner) { owner_ = owner; }

  private:
    QWidget* owner_ = nullptr;
};

}  // namespace kestrel::qt
