#include "tools/Capture.h"

#include <gtest/gtest.h>

#include "tests/support/Services.h"
#include "tools/ScreenSettling.h"

namespace kestrel::tools {
namespace {

using std::chrono::milliseconds;

TEST(Capture, TheSquareAlwaysLiesOnTheMonitors) {
    Capture capture(test::Numbered(300, 200), {{{0, 0, 180, 200}}, {{180, 50, 120, 100}}});
    EXPECT_EQ(capture.Corners(), (gdi::Rect{0, 0, 269, 169}));
    const struct {
        gdi::Point pointer, corner;
    } cases[] = {{{40, 60}, {40, 60}},     {{-3, -9}, {0, 0}},       {{170, 60}, {170, 60}},
                 {{170, 130}, {148, 130}}, {{179, 199}, {148, 168}}, {{299, 51}, {268, 51}},
                 {{190, 149}, {190, 118}}, {{299, 199}, {268, 118}}};
    for (const auto& [pointer, corner] : cases) {
        capture.PointAt(pointer);
        EXPECT_EQ(capture.Corner(), corner) << pointer.x << ", " << pointer.y;
    }
    capture.PointAt({267, 116});
    EXPECT_EQ(capture.Square().GetPixel(31, 1), 117U * 300 + 298);
}

TEST(Capture, FrameAndLoupeLeaveTheSquareAloneAndShowItsPixels) {
    const gdi::Surface picture = test::Numbered(700, 500);
    for (const auto& [on, line] : {Monitor{{0, 0, 700, 500}, 1}, Monitor{{20, 10, 640, 480}, 2}}) {
        Capture capture(picture, {{on, line}});
        for (int at = 0; at < 700; at += 9) {
            capture.PointAt({at, (at * 7) % 500});
            const auto [frame, loupe] = capture.Marks();
            const auto [x, y] = capture.Corner();
            const int right = loupe.left + loupe.width;
            ASSERT_TRUE(loupe.left >= on.left && right <= on.left + on.width);
            ASSERT_TRUE(loupe.top >= on.top && loupe.top + loupe.height <= on.top + on.height);
            ASSERT_TRUE(loupe.left > frame.left + frame.width || right < frame.left);
            const gdi::Surface shown = capture.Shown({x - 2 * line, y - 1, 34, 33});
            ASSERT_EQ(shown.GetPixel(0, 1), gdi::kWhite);
            ASSERT_EQ(shown.GetPixel(2 * line - 1, 1), gdi::kBlack);
            ASSERT_EQ(shown.GetPixel(2 * line, 1), picture.GetPixel(x, y));
            // Two edges, 32 pixels, three lines between blocks of eight.
            const int side = (loupe.width - 9 * line) / 32;
            const gdi::Surface enlarged = capture.Shown(loupe);
            for (int i = 0; i < 32; ++i) {
                const int left = 3 * line + i * side + i / 8 * line;
                for (const int of : {left, left + side - 1})
                    ASSERT_EQ(enlarged.GetPixel(of, loupe.height - 3 * line - side),
                              picture.GetPixel(x + i, y + 31));
            }
        }
    }
}

// Pictures are named by a letter: w shows the window, the others what comes after it.
TEST(ScreenSettling, EndsWhenTheWindowIsGoneAndAllIsQuiet) {
    const auto picture = [](char name) {
        gdi::Surface shown(64, 48, static_cast<gdi::COLORREF>(name));
        if (name == 'w') shown.SetPixel(20, 20, gdi::kBlack);
        return shown;
    };
    const struct {
        const char* pictures;  // one each 10 ms
        int nearly, gone;      // in ms
    } cases[] = {{"aaaaaaa", 10, 30},
                 {"waaaaaaa", 20, 40},
                 {"abcdeeeee", 50, 70},
                 {"aaabbbbbbb", 40, 60},
                 {"wwwwwwwwwaaaaaa", 100, 120},
                 {"wwwwwwwwwwwwwwwwwww", 150, 150},
                 {"abababababababababab", 150, 150}};
    for (const auto& c : cases) {
        ScreenSettling settling(picture('w'), {16, 16, 32, 32}, milliseconds(150));
        int nearly = 0;
        int elapsed = 0;
        for (;; elapsed += 10) {
            const Gone gone =
                settling.Look(milliseconds(elapsed), picture(c.pictures[elapsed / 10]));
            if (gone == Gone::Yes) break;
            if (gone == Gone::No) nearly = elapsed + 10;
        }
        EXPECT_EQ(std::pair(nearly, elapsed), std::pair(c.nearly, c.gone)) << c.pictures;
    }
}

}  // namespace
}  // namespace kestrel::tools
