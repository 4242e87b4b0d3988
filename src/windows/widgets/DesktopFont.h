#pragma once

#include <QStringList>
#include <QWidget>

namespace kestrel::widgets {

// The windows were designed for a desktop whose text is so many pixels high.
inline constexpr int kDesignedText = 12;

// A size of that design in proportion to the desktop's text. Loads the fonts.
int AsOnDesktop(int pixels);

// The widget's font in that proportion or, where its place is fixed, the largest below that has
// room for each of the texts on a line of its own; no smaller than was designed for small text.
QFont FittingFont(const QWidget& widget, int designed, QSize room, const QStringList& texts);

}  // namespace kestrel::widgets
