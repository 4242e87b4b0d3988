#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include "desktop/QtOwnerWindow.h"
#include "tools/IconExtraction.h"
#include "windows/widgets/IconGridView.h"

namespace kestrel::windows {

// Shows the icons of a file and lets the user select one, or another file. Modal.
class FrmIcons : public QDialog {
  public:
    // `extraction` outlives the dialog.
    FrmIcons(QWidget* owner, tools::IconExtraction& extraction);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    QLayout* NewGrid();
    QLayout* NewCommands();
    void ShowFile();
    void ShowSelection();
    void PicIcons_MouseUp(QPoint point, bool second);
    void CmdBrowse_Click();

    tools::IconExtraction& extraction_;
    desktop::QtOwnerWindow window_{*this};
    // The part of the grid that is seen.
    QWidget* PicFrame_;
    widgets::IconGridView* PicIcons_;
    QScrollBar* Vsb_;
    QLabel* lblInfo_;
    QPushButton* cmdOK_ = nullptr;
    // What the wheel has turned beyond whole pixels, in 120ths of one.
    int wheelRest_ = 0;
};

}  // namespace kestrel::windows
