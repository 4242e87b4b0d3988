#pragma once

#include <QDialog>

namespace kestrel::desktop {

// What a dialog may take of its screen, its frame not counted.
QSize RoomOnScreen(const QDialog& dialog);

// Makes the text of a dialog smaller until the screen holds it together with its frame: with large
// fonts a small screen would cut its buttons off. The dialog's layout is complete.
void FitOnScreen(QDialog& dialog);

}  // namespace kestrel::desktop
