#include "tests/support/PictureText.h"

#include <ios>

namespace kestrel::test {

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
