#include "tests/support/PictureText.h"

#include <ios>
#include <string>

namespace kestrel::test {

testing::AssertionResult ComparePicture(const gdi::Surface& actual, Inks inks,
                                        std::string_view rows) {
    std::string known = " \t\r\n";
    for (const auto& ink : inks)
        known += ink.letter;
    if (const auto at = rows.find_first_not_of(known); at != std::string_view::npos)
        return testing::AssertionFailure() << "letter '" << rows[at] << "' has no ink";
    return ComparePicture(actual, gdi::ReadPixelArt(rows, inks));
}

testing::AssertionResult ComparePicture(const gdi::Surface& actual, const gdi::Surface& expected) {
    if (actual.SamePixels(expected)) return testing::AssertionSuccess();
    for (int y = 0; y < expected.Height(); ++y) {
        for (int x = 0; x < expected.Width(); ++x) {
            const gdi::COLORREF want = expected.GetPixel(x, y);
            const gdi::COLORREF got = actual.GetPixel(x, y);
            if (want != got)
                return testing::AssertionFailure() << "pixel (" << x << ", " << y << "): expected "
                                                   << std::hex << want << ", actual " << got;
        }
    }
    return testing::AssertionFailure()
           << "size: " << actual.Width() << " x " << actual.Height() << ", larger than expected";
}

}  // namespace kestrel::test
