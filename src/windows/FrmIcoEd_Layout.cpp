#include <qdrawutil.h>

#include <QPainter>
#include <QTimer>

#include "windows/FrmIcoEd.h"
#include "windows/widgets/AccessibleRole.h"
#include "windows/widgets/WindowDesign.h"

namespace kestrel::windows {

namespace {

// The client area, and the whole window with its frame as it was designed.
constexpr QSize kMainSize(565, 432);
constexpr QSize kWindowSize(571, 457);

constexpr QPoint kMenuBar(0, 2);
constexpr QPoint kToolbar(8, 31);
constexpr QPoint kGrid(8, 65);
constexpr QPoint kPreview(344, 65);
constexpr QPoint kTools(452, 65);
constexpr QPoint kColors(344, 156);
constexpr QRect kStatusBar(2, 411, 561, 20);

constexpr int kMainFont = 12;

}  // namespace

void FrmIcoEd::LayOutControls() {
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    setFixedSize(kMainSize);
    widgets::SetRole(*this, QAccessible::Window);
    setFont(widgets::FontOf(*this, kMainFont));
    toolbar1_->setObjectName("Toolbar1");
    toolbar1_->move(kToolbar);
    grid_.move(kGrid);
    preview_.move(kPreview);
    tools_.move(kTools);
    colors_.move(kColors);
    statusBar_.setFont(widgets::FontOf(*this, widgets::kSmallFontPixels));
    statusBar_.setGeometry(kStatusBar);

    grid_.Show(editor_);
    grid_.onPopup = [this] { EditingPopup()->popup(grid_.PopupPoint()); };
    preview_.Show(editor_.Views().PicIcon);
    tools_.Show(editor_);
    colors_.Show(editor_.ColorPalette());
    colors_.Connect(commands_, runner_);
    grid_.AddTo(controls_);
    preview_.AddTo(controls_);
    tools_.AddTo(controls_);
    colors_.AddTo(controls_);
    menuBar_->setObjectName("MenuBar");
    controls_.AddName(*menuBar_);
    controls_.AddName(*toolbar1_);
    controls_.AddName(statusBar_);
}

void FrmIcoEd::ShowTextControls(bool shown) {
    for (QWidget* control : std::initializer_list<QWidget*>{menuBar_.get(), &preview_.Label1(),
                                                            &colors_.ChkPal(), &statusBar_}) {
        control->setVisible(shown);
    }
    if (!shown) return;
    FitTexts();
}

// Also after a change of the language, whose texts have other sizes.
void FrmIcoEd::FitTexts() {
    barView_.FollowDesktopFont(*menuBar_, {width(), kToolbar.y() - kMenuBar.y()});
    FitMenuBar();
    preview_.FitTexts();
    colors_.FitTexts();
    statusBar_.FitTexts();
}

// Its entries underline the bar only where they are as high as it is, which depends on the font of
// the language.
void FrmIcoEd::FitMenuBar() {
    menuBar_->setGeometry(QRect(kMenuBar, QSize(width(), menuBar_->sizeHint().height())));
}

// Laying out the first text loads the fonts, a third of the whole start: the window is put on the
// screen first and gets its texts before it is painted.
void FrmIcoEd::showEvent(QShowEvent* /*event*/) {
    QTimer::singleShot(0, this, [this] { ShowTextControls(true); });
}

void FrmIcoEd::PlaceOnScreen() {
    widgets::PlaceOnScreen(*this, kWindowSize);
}

void FrmIcoEd::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    qDrawShadePanel(&painter, QRect(0, 0, width() + 1, 2), palette(), true, 1);
}

}  // namespace kestrel::windows
