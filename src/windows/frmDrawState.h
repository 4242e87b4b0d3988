#pragma once

#include <QDialog>
#include <QPushButton>
#include <vector>

#include "tools/DrawState.h"
#include "windows/widgets/SurfaceWidget.h"

namespace kestrel::windows {

// Shows an icon in the states that desktops draw icons in, each below its label. Modal; follows the
// desktop's colours and the language.
class frmDrawState : public QDialog {
  public:
    frmDrawState(QWidget* owner, gdi::IconPlanes icon);

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void ShowTexts();
    void DrawStates();
    QFont LabelFont() const;
    void DrawLabel(QPainter& painter, QRect box, const tools::StateRow& state) const;

    gdi::IconPlanes icon_;
    tools::StateColors colors_;
    // In the order of tools::DrawStates().
    std::vector<gdi::Surface> pictures_;
    // The icon that is cut.
    widgets::SurfaceWidget* picCut_;
    QPushButton* CmdClose_;
};

}  // namespace kestrel::windows
