#include "tools/Magnifier.h"

#include <gtest/gtest.h>

#include "tests/support/PictureText.h"
#include "tests/support/Services.h"
#include "tools/MagnifierClock.h"
#include "tools/MagnifierSettings.h"

namespace kestrel::tools {
namespace {

constexpr test::Inks kInks = {{'r', 0x0000FF}, {'g', 0x00FF00}, {'k', 0x000000},
                              {'.', 0x123456}, {'m', 0x808080}, {'l', 0xC0C0C0}};

TEST(Magnifier, TakesWholePixelsAndOneMoreWhereTheyDoNotFillThePicture) {
    struct {
        gdi::Point pointer;
        gdi::Size picture;
        float factor = 1;
        Magnification shown;
    } const cases[] = {
        {{100, 100}, {160, 120}, 2, {{60, 70, 80, 60}, {160, 120}}},
        {{0, 0}, {161, 162}, 3, {{-26, -27, 54, 54}, {162, 162}}},
        {{500, 400}, {400, 300}, 0.25F, {{-300, -200, 1600, 1200}, {400, 300}}},
        // 266 take 399 pixels, and one more 400.5: the half goes to the even number.
        {{200, 150}, {400, 300}, 1.5F, {{67, 50, 267, 200}, {400, 300}}},
        // In single precision 2.2 is a little more and 3.3 a little less.
        {{0, 0}, {22, 33}, 2.2F, {{-4, -7, 10, 15}, {21, 32}}},
        {{0, 0}, {33, 7}, 3.3F, {{-5, -1, 11, 3}, {35, 9}}},
        {{5, 5}, {4, 25}, 10, {{5, 4, 1, 3}, {10, 30}}},
    };
    for (const auto& [pointer, picture, factor, shown] : cases) {
        const Magnification now = MagnificationAt(pointer, picture, factor);
        EXPECT_EQ(now.source, shown.source) << factor;
        EXPECT_EQ(now.drawn, shown.drawn) << factor;
    }
}

TEST(Magnifier, DrawsPixelsGroundAndGridAndNothingTwice) {
    test::PaintedScreen screen;
    screen.shown = gdi::ReadPixelArt("rgr\ngkr\nrrk", kInks);
    Magnifier magnifier(screen);
    magnifier.SetGround(0x123456);
    gdi::Surface rows(2, 2);
    magnifier.SetZoom(50);
    magnifier.ShowGrid(true);
    EXPECT_TRUE(magnifier.Look({1, 1}, {2, 2}));
    magnifier.DrawRows(rows, 0);
    EXPECT_PICTURE(rows, kInks, "..\n.k");

    magnifier.SetZoom(300);
    EXPECT_TRUE(magnifier.Look({0, 0}, {9, 6}));
    rows = gdi::Surface(9, 4);
    magnifier.DrawRows(rows, 0);
    EXPECT_PICTURE(rows, kInks, R"(
        mlmlmlmlm
        l..m..l..
        m..l..m..
        lmlmlmlml)");
    magnifier.DrawRows(rows, 3);
    const gdi::Surface last =
        gdi::ReadPixelArt("lmlmlmlml\nm..lrrmgg\nl..mrrlgg\n.........", kInks);
    for (int y = 0; y < 3; ++y)
        EXPECT_TRUE(std::ranges::equal(rows.Row(y), last.Row(y))) << y;

    screen.shown.SetPixel(2, 2, 0xFFFFFF);
    EXPECT_FALSE(magnifier.Look({0, 0}, {9, 6})) << "changed where it is not seen";
    screen.shown.SetPixel(1, 0, 0xFFFFFF);
    EXPECT_TRUE(magnifier.Look({0, 0}, {9, 6}));
    magnifier.ShowGrid(false);
    EXPECT_TRUE(magnifier.Look({0, 0}, {9, 6}));
    screen.seen = false;
    EXPECT_FALSE(magnifier.Look({1, 0}, {9, 6}));
}

TEST(Magnifier, LooksWhenThePointerMovesOrAQuarterSecondIsOver) {
    MagnifierClock clock;
    std::string done;
    for (int tick = 1; tick <= 14; ++tick) {
        if (tick == 8) clock.Redraw();
        if (tick == 12) clock.Restart();
        const auto due = clock.Tick({tick < 7 ? 3 : 4, 5});
        done += due.renew ? (due.draw ? '*' : '!') : (due.draw ? 'd' : '-');
    }
    EXPECT_EQ(done, "d---*-dd-*-*--");
}

TEST(Magnifier, ZoomAndSwitchesAreReadWithinBoundsAndSaved) {
    test::FakeServices given;
    const auto write = [&](const char* key, const char* text) {
        given.settings.WriteSetting("Settings", key, text);
    };
    const std::pair<const char*, int> zooms[] = {{"", 200},    {"abc", 200},         {" 333x", 333},
                                                 {"24", 25},   {"-3", 25},           {"1001", 1000},
                                                 {"25.9", 25}, {"99999999999", 1000}};
    for (const auto& [text, zoom] : zooms) {
        write("Zoom", text);
        EXPECT_EQ(ReadMagnifierSettings(given.settings).zoom, zoom) << text;
    }
    write("Grid", "tRUE");
    write("OnTop", "1");
    MagnifierSettings chosen = ReadMagnifierSettings(given.settings);
    EXPECT_TRUE(chosen.grid && !chosen.onTop);
    chosen = {.zoom = 41, .grid = false, .onTop = true};
    SaveMagnifierSettings(given.settings, chosen);
    const auto& file = given.files.contents.at("/settings.ini");
    EXPECT_EQ(std::string(file.begin(), file.end()),
              "[Settings]\nZoom=41\nGrid=False\nOnTop=True\n");
    const std::pair<const char*, int> typed[] = {
        {"", 25}, {"7", 25}, {"150%", 150}, {"5000", 1000}, {"99999999999", 1000}};
    for (const auto& [text, zoom] : typed)
        EXPECT_EQ(TypedZoom(text), zoom) << text;
}

}  // namespace
}  // namespace kestrel::tools
