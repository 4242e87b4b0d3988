#include "tools/Capture.h"

#include <gtest/gtest.h>

#include "tools/ScreenSettling.h"

namespace kestrel::tools {
namespace {

using std::chrono::milliseconds;

// Each pixel has a colour of its own.
gdi::Surface Numbered(int width, int height) {
    gdi::Surface picture(width, height);
    gdi::COLORREF number = 0x10000;
    for (int y = 0; y < height; ++y) {
        for (gdi::COLORREF& pixel : picture.Row(y))
            pixel = number++;
    }
    return picture;
}

TEST(Capture, TheSquareAlwaysLiesOnTheMonitors) {
    Capture capture(Numbered(300, 200), {{{0, 0, 180, 200}}, {{180, 50, 120, 100}}});
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
    capture.MoveBy(-1, -2);
    EXPECT_EQ(capture.Square().GetPixel(31, 1), 0x10000U + 117 * 300 + 298);
}

TEST(Capture, FrameAndLoupeLeaveTheSquareAloneAndShowItsPixels) {
    const gdi::Surface picture = Numbered(700, 500);
    for (const Monitor& monitor : {Monitor{{0, 0, 700, 500}, 1}, Monitor{{20, 10, 640, 480}, 2}}) {
        Capture capture(picture, {monitor});
        for (int at = 0; at < 700; at += 9) {
            capture.PointAt({at, (at * 7) % 500});
            const auto [frame, loupe] = capture.Marks();
            const gdi::Point corner = capture.Corner();
            const gdi::Rect& on = monitor.area;
            ASSERT_TRUE(loupe.left >= on.left && loupe.left + loupe.width <= on.left + on.width);
            ASSERT_TRUE(loupe.top >= on.top && loupe.top + loupe.height <= on.top + on.height);
            ASSERT_TRUE(loupe.left > frame.left + frame.width ||
                        loupe.left + loupe.width < frame.left);
            const gdi::Surface shown = capture.Shown({frame.left, frame.top, 40, 40});
            const int line = corner.x - frame.left;
            ASSERT_EQ(line, 3 * monitor.scale);
            ASSERT_EQ(shown.GetPixel(line, line), picture.GetPixel(corner.x, corner.y));
            ASSERT_EQ(shown.GetPixel(line - 1, line), gdi::kBlack);
            ASSERT_EQ(shown.GetPixel(line, line / 2), gdi::kWhite);
            const gdi::Surface enlarged = capture.Shown(loupe);
            // Two edges, 32 pixels, three lines between blocks of eight.
            const int side = (loupe.width - 9 * monitor.scale) / 32;
            ASSERT_EQ(loupe.width, 9 * monitor.scale + 32 * side);
            for (int i = 0; i < 32; ++i) {
                const int x = line + i * side + i / 8 * monitor.scale;
                const gdi::COLORREF color = picture.GetPixel(corner.x + i, corner.y + 31);
                ASSERT_EQ(enlarged.GetPixel(x, loupe.height - line - 1), color);
                ASSERT_EQ(enlarged.GetPixel(x + side - 1, loupe.height - line - side), color);
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
        int over;              // in ms
    } cases[] = {{"aaaaaaa", 30},
                 {"waaaaaaa", 40},
                 {"abcdeeeee", 70},
                 {"aabbbbbbb", 50},
                 {"wwwwwwwwwaaaaaa", 120},
                 {"wwwwwwwwwwwwwwwwwww", 150},
                 {"abababababababababab", 150}};
    for (const auto& [pictures, over] : cases) {
        ScreenSettling settling(picture('w'), {16, 16, 32, 32}, milliseconds(150));
        int elapsed = 0;
        while (!settling.IsOver(milliseconds(elapsed), picture(pictures[elapsed / 10])))
            elapsed += 10;
        EXPECT_EQ(elapsed, over) << pictures;
    }
}

}  // namespace
}  // namespace kestrel::tools
