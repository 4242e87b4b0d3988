#pragma once

#include <gtest/gtest.h>

#include <initializer_list>

#include "platform/gdi/PixelArt.h"

namespace kestrel::test {

using Inks = std::initializer_list<gdi::ArtInk>;

// Fails with the first pixel that differs.
testing::AssertionResult ComparePicture(const gdi::Surface& actual, const gdi::Surface& expected);

}  // namespace kestrel::test

// EXPECT_PICTURE(surface, inks, R"( text )"): the surface shows exactly the picture in the text.
// `inks` is a named list.
#define EXPECT_PICTURE(surface, inks, rows) \
    EXPECT_TRUE(                            \
        ::kestrel::test::ComparePicture((surface), ::kestrel::gdi::ReadPixelArt(rows, inks)))
