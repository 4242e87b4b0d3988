#include "desktop/QtMessageBoxes.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QTextBoundaryFinder>

namespace kestrel::desktop {

namespace {

using services::Answer;
using services::BoxButtons;
using services::BoxIcon;

QMessageBox::Icon ToIcon(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::Question:
            return QMessageBox::Question;
        case BoxIcon::Information:
            return QMessageBox::Information;
        case BoxIcon::Exclamation:
            return QMessageBox::Warning;
        case BoxIcon::Critical:
            return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ToButtons(BoxButtons buttons) {
    switch (buttons) {
        case BoxButtons::Ok:
            return QMessageBox::Ok;
        case BoxButtons::OkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case BoxButtons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case BoxButtons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

QMessageBox::StandardButton ToButton(Answer answer) {
    switch (answer) {
        case Answer::Ok:
            return QMessageBox::Ok;
        case Answer::Yes:
            return QMessageBox::Yes;
        case Answer::No:
            return QMessageBox::No;
        case Answer::Cancel:
            return QMessageBox::Cancel;
    }
    return QMessageBox::NoButton;
}

Answer ToAnswer(int button, BoxButtons asked) {
    switch (button) {
        case QMessageBox::Ok:
            return Answer::Ok;
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        default:
            return asked == BoxButtons::Ok ? Answer::Ok : Answer::Cancel;
    }
}

// A name without blanks may be wider than the screen: long words may end a line after any letter.
QString Breakable(const QString& text) {
    constexpr qsizetype kLongWord = 30;
    constexpr QChar kZeroWidthSpace(u'\x200B');
    QString breakable;
    QTextBoundaryFinder words(QTextBoundaryFinder::Line, text);
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, text);
    qsizetype endOfWord = words.toNextBoundary();
    bool isLong = endOfWord > kLongWord;
    for (qsizetype at = 0, next = 0; at < text.size(); at = next) {
        next = letters.toNextBoundary();
        breakable += QStringView(text).sliced(at, next - at);
        if (isLong) breakable += kZeroWidthSpace;
        if (next < endOfWord) continue;
        endOfWord = words.toNextBoundary();
        isLong = endOfWord - next > kLongWord;
    }
    return breakable;
}

// A short sentence makes a box whose frame cuts the title.
void MakeRoomForTitle(QMessageBox& box) {
    constexpr int kButtonsOfFrame = 120;  // pixels, with the icon
    QFont frameFont = box.font();
    frameFont.setBold(true);
    const int width = QFontMetrics(frameFont).horizontalAdvance(box.windowTitle());
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout()); grid != nullptr) {
        grid->addItem(new QSpacerItem(width + kButtonsOfFrame, 0), grid->rowCount(), 0, 1,
                      grid->columnCount());
    }
}

}  // namespace

Answer QtMessageBoxes::Ask(BoxIcon icon, BoxButtons buttons, Answer preset, const std::string& text,
                           const std::string& title) {
    QWidget* dialog = QApplication::activeModalWidget();
    QMessageBox box(ToIcon(icon), QString::fromStdString(title),
                    Breakable(QString::fromStdString(text).remove(QLatin1Char('\r'))),
                    ToButtons(buttons), dialog == nullptr ? owner_ : dialog);
    box.setDefaultButton(ToButton(preset));
    box.setTextFormat(Qt::PlainText);
    MakeRoomForTitle(box);
    // Of the library's picture, which screen readers show without any.
    if (auto* picture = box.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label")))
        picture->setAccessibleName(box.windowTitle());
    return ToAnswer(box.exec(), buttons);
}

}  // namespace kestrel::desktop
