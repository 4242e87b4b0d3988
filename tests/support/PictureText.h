#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string_view>

#include "platform/gdi/PixelArt.h"

namespace kestrel::test {

using Inks = std::initializer_list<gdi::ArtInk>;

inline constexpr Inks kBlackOnWhite = {{'#', gdi::kBlack}, {'.', gdi::kWhite}};

// Fails with the first pixel that differs. A letter of `rows` that has no ink is a failure too.
testing::AssertionResult ComparePicture(const gdi::Surface& actual, Inks inks,
                                        std::string_view rows);
testing::AssertionResult ComparePicture(const gdi::Surface& actual, const gdi::Surface& expected);

}  // namespace kestrel::test

// EXPECT_PICTURE(surface, inks, R"( text )"): the surface shows exactly the picture in the text.
// `inks` is a named list, such as kBlackOnWhite.
#define EXPECT_PICTURE(surface, inks, rows) \
    EXPECT_TRUE(::kestrel::test::ComparePicture((surface), (inks), (rows)))
