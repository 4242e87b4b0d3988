#include "settings/WindowPositions.h"

#include <gtest/gtest.h>

#include "tests/support/Services.h"

namespace kestrel::settings {
namespace {

constexpr WindowBounds kDesigned{3000, 2000, 4500, 3000};
constexpr const char* kFile = "/own.ini";

struct FakeWindow : PositionedWindow {
    std::string Name() const override { return "frmZoom"; }
    WindowState State() const override { return state; }
    WindowBounds Bounds() const override { return bounds; }
    WindowBounds Screen() const override { return {0, 0, 15360, 11520}; }
    void Move(const WindowBounds& target) override { bounds = target; }
    void Maximise() override { state = WindowState::Maximised; }

    WindowBounds bounds = kDesigned;
    WindowState state = WindowState::Normal;
};

TEST(WindowPositions, SavesNormalBoundsAndRestoresWhatFitsTheScreen) {
    test::FakeServices given;
    const std::tuple<WindowState, WindowBounds, const char*> steps[] = {
        {WindowState::Maximised, {1, 2, 3, 4}, "-1,-1,-1,-1,True"},
        {WindowState::Normal, kDesigned, "3000,2000,4500,3000,False"},
        {WindowState::Minimised, {1, 2, 3, 4}, "3000,2000,4500,3000,False"},
    };
    FakeWindow saved;
    for (const auto& [state, bounds, stored] : steps) {
        saved.state = state;
        saved.bounds = bounds;
        SaveWindowPosition(given.settings, saved, kFile);
        EXPECT_EQ(given.settings.ReadSetting("Positions", "frmZoom", "", kFile), stored);
    }
    const std::tuple<const char*, WindowBounds, bool> cases[] = {
        {"150, 300 ,6000,149, tRUE ", {150, 300, 6000, 3000}, true},
        {"0,0,99999,99999,False", {0, 0, 15360, 11520}, false},
        {"20000,20000,6000,4500,False", {9360, 7020, 6000, 4500}, false},
        {"-1,-1,15000,11000,False", {360, 520, 15000, 11000}, false},
        {"2147483647,99999999999,x,150,yes", {10860, 11370, 4500, 150}, false},
    };
    for (const auto& [stored, bounds, maximised] : cases) {
        given.settings.WriteSetting("Positions", "frmZoom", stored, kFile);
        FakeWindow window;
        RestoreWindowPosition(given.settings, window, kFile);
        EXPECT_EQ(window.bounds, bounds) << stored;
        EXPECT_EQ(window.state == WindowState::Maximised, maximised) << stored;
    }
    EXPECT_EQ(given.files.contents.size(), 1U) << "only the file that was named";
}

}  // namespace
}  // namespace kestrel::settings
