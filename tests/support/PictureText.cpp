#include "tests/support/PictureText.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

namespace kestrel::test {
namespace {

char LetterOf(gdi::COLORREF color, Inks inks) {
    for (const auto& ink : inks) {
        if (ink.color == color) return ink.letter;
    }
    return '?';
}

std::string ColorText(gdi::COLORREF color, Inks inks) {
    std::ostringstream text;
    text << LetterOf(color, inks) << " 0x" << std::hex << std::uppercase << std::setfill('0')
         << std::setw(6) << color;
    return text.str();
}

std::string SizeText(const gdi::Surface& picture) {
    return std::to_string(picture.Width()) + " x " + std::to_string(picture.Height());
}

}  // namespace

std::string PictureText(const gdi::Surface& picture, Inks inks) {
    std::string text;
    for (int y = 0; y < picture.Height(); ++y) {
        for (const gdi::COLORREF color : picture.Row(y))
            text.append({LetterOf(color, inks), ' '});
        if (!text.empty()) text.back() = '\n';
    }
    return text;
}

testing::AssertionResult ComparePicture(const gdi::Surface& actual, Inks inks,
                                        std::string_view rows) {
    std::string known = " \t\r\n";
    for (const auto& ink : inks)
        known += ink.letter;
    if (const auto at = rows.find_first_not_of(known); at != std::string_view::npos) {
        return testing::AssertionFailure() << "letter '" << rows[at] << "' has no ink";
    }
    return ComparePicture(actual, gdi::ReadPixelArt(rows, inks), inks);
}

testing::AssertionResult ComparePicture(const gdi::Surface& actual, const gdi::Surface& expected,
                                        Inks inks) {
    const int width = actual.Width();
    if (width != expected.Width() || actual.Height() != expected.Height()) {
        return testing::AssertionFailure()
               << "size: expected " << SizeText(expected) << ", actual " << SizeText(actual);
    }
    if (actual.SamePixels(expected)) return testing::AssertionSuccess();
    std::string first;
    int count = 0;
    for (int i = 0; i < width * actual.Height(); ++i) {
        const gdi::COLORREF want = expected.GetPixel(i % width, i / width);
        const gdi::COLORREF got = actual.GetPixel(i % width, i / width);
        if (want == got || ++count > 1) continue;
        first = "pixel (" + std::to_string(i % width) + ", " + std::to_string(i / width) +
                "): expected " + ColorText(want, inks) + ", actual " + ColorText(got, inks);
    }
    auto failure = testing::AssertionFailure() << first << "; pixels that differ: " << count;
    constexpr int kPrintableSide = 64;
    if (std::max(width, actual.Height()) > kPrintableSide) return failure;
    return failure << "\nexpected:\n"
                   << PictureText(expected, inks)  //
                   << "actual:\n"
                   << PictureText(actual, inks);
}

}  // namespace kestrel::test
