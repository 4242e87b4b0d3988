#pragma once

#include <QBoxLayout>
#include <QDialog>

#include "i18n/Language.h"

namespace kestrel::windows {

inline constexpr int kDialogMargin = 14;
inline constexpr int kBetweenBlocks = 14;

// The rows of a dialog: titled, closed by its keys, and as large as what is in them.
QVBoxLayout* NewRows(QDialog& dialog, const i18n::Text& title);

// OK, which Enter presses, and Cancel, at the right end of a row.
QHBoxLayout* NewButtons(QDialog& dialog, const i18n::Text& ok, const i18n::Text& cancel);

// A picture in a sunken frame.
QWidget* NewFrame(QWidget* picture);

// Tells screen readers that this picture shows what the dialog's controls make of it.
void NamePreview(QWidget& picture);

// The dialog's controls are complete: gives it its size and its place on the screen, with one part
// of so many of the free height above it.
void PlaceDialog(QDialog& dialog, int parts = 2);

}  // namespace kestrel::windows
