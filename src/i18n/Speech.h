#pragma once

#include <string>

#include "i18n/Language.h"
#include "platform/gdi/Color.h"

namespace kestrel::i18n {

// What screen readers say, in the language in force.

// A colour by its name where it has one, else by its three parts.
std::string ColorName(gdi::COLORREF color);
// The same of what may be transparent instead.
std::string ColorName(gdi::COLORREF color, bool transparent);
// What shows a colour or a part of one: "Foreground Color: red".
std::string Named(std::string_view control, std::string_view color);
// A pixel of the icon, by column and row from 0 as the status bar counts them.
std::string PixelName(int column, int row, std::string_view color);

}  // namespace kestrel::i18n
