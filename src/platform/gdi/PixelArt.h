#pragma once

#include <initializer_list>
#include <span>
#include <string_view>

#include "platform/gdi/IconPlanes.h"

namespace kestrel::gdi {

// One letter of a picture that is written as text, and the colour it stands for.
struct ArtInk {
    char letter;
    COLORREF color;
};

// Reads a picture written as text: one row a line, one letter a pixel, blanks and empty lines
// ignored. Letters that `inks` does not name take `otherwise`. The surface is as wide as the
// longest row; short rows are filled up with `otherwise`.
Surface ReadPixelArt(std::string_view rows, std::span<const ArtInk> inks,
                     COLORREF otherwise = kWhite);
inline Surface ReadPixelArt(std::string_view rows, std::initializer_list<ArtInk> inks,
                            COLORREF otherwise = kWhite) {
    return ReadPixelArt(rows, std::span(inks.begin(), inks.size()), otherwise);
}

// The same as an icon: '.' is transparent; letters that `inks` does not name are black.
IconPlanes ReadIconArt(std::string_view rows, std::span<const ArtInk> inks);

}  // namespace kestrel::gdi
