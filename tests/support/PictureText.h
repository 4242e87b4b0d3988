#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>

#include "platform/gdi/PixelArt.h"

namespace kestrel::test {

using Inks = std::initializer_list<gdi::ArtInk>;

inline constexpr Inks kBlackOnWhite = {{'#', gdi::kBlack}, {'.', gdi::kWhite}};

// One line a row, letters with a blank between; colours without an ink come out as '?'.
std::string PictureText(const gdi::Surface& picture, Inks inks);

// Fails with the first differing pixel (x, y, expected, actual), how many differ, and the pictures
// if they are small. A letter of `rows` that has no ink is a failure too.
testing::AssertionResult ComparePicture(const gdi::Surface& actual, Inks inks,
                                        std::string_view rows);
testing::AssertionResult ComparePicture(const gdi::Surface& actual, const gdi::Surface& expected,
                                        Inks inks = kBlackOnWhite);

}  // namespace kestrel::test

// EXPECT_PICTURE(surface, inks, R"( text )"): the surface shows exactly the picture in the text.
// `inks` is a named list, such as kBlackOnWhite.
#define EXPECT_PICTURE(surface, inks, rows) \
    EXPECT_TRUE(::kestrel::test::ComparePicture((surface), (inks), (rows)))
