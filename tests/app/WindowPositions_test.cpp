#include "app/WindowPositions.h"

#include <gtest/gtest.h>

#include <ostream>

#include "tests/support/Recorders.h"

namespace kestrel::app {

static void PrintTo(const WindowBounds& b, std::ostream* out) {
    *out << b.left << ", " << b.top << ", " << b.width << " x " << b.height;
}

namespace {

constexpr WindowBounds kDesigned{3000, 2000, 4500, 3000};

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

class WindowPositionsTest : public testing::Test {
  protected:
    std::string Stored() { return settings_.ReadSetting("Positions", "frmZoom", "none", kFile); }
    void Store(const std::string& value) {
        settings_.WriteSetting("Positions", "frmZoom", value, kFile);
    }

    const std::string kFile = "/own.ini";
    test::MemoryFiles files_;
    Settings settings_{files_};
};

TEST_F(WindowPositionsTest, RestoresWhatFitsTheScreen) {
    const struct {
        const char* stored = "";
        WindowBounds bounds;
        bool maximised = false;
    } cases[] = {
        {"", kDesigned, false},
        {"1,2,3,4", kDesigned, false},
        {"150, 300 ,6000,4500,False", {150, 300, 6000, 4500}, false},
        {"150,300,6000,4500, tRUE ", {150, 300, 6000, 4500}, true},
        {"150,300,100,149,False", {150, 300, 4500, 3000}, false},
        {"0,0,99999,99999,False", {0, 0, 15360, 11520}, false},
        {"20000,20000,6000,4500,False", {9360, 7020, 6000, 4500}, false},
        {"-1,-1,-1,-1,True", kDesigned, true},
        {"-1,-1,15000,11000,False", {360, 520, 15000, 11000}, false},
        {"2147483647,99999999999,x,150,yes", {10860, 11370, 4500, 150}, false},
        {",,,,", {0, 0, 4500, 3000}, false},
    };
    for (const auto& c : cases) {
        Store(c.stored);
        FakeWindow window;
        RestoreWindowPosition(settings_, window, kFile);
        EXPECT_EQ(window.bounds, c.bounds) << c.stored;
        EXPECT_EQ(window.state == WindowState::Maximised, c.maximised) << c.stored;
    }
    FakeWindow tooWide;
    tooWide.bounds = {12000, 0, 4500, 3000};
    Store("");
    RestoreWindowPosition(settings_, tooWide, kFile);
    EXPECT_EQ(tooWide.bounds, (WindowBounds{10860, 0, 4500, 3000}));
}

TEST_F(WindowPositionsTest, SavesBoundsOrKeepsThoseOfBefore) {
    const struct {
        WindowState state{};
        WindowBounds bounds;
        const char* stored{};
    } steps[] = {
        {WindowState::Maximised, {1, 2, 3, 4}, "-1,-1,-1,-1,True"},
        {WindowState::Normal, {3000, 2000, 4500, 3000}, "3000,2000,4500,3000,False"},
        {WindowState::Maximised, {1, 2, 3, 4}, "3000,2000,4500,3000,True"},
        {WindowState::Minimised, {1, 2, 3, 4}, "3000,2000,4500,3000,False"},
    };
    FakeWindow window;
    for (const auto& step : steps) {
        window.state = step.state;
        window.bounds = step.bounds;
        SaveWindowPosition(settings_, window, kFile);
        EXPECT_EQ(Stored(), step.stored);
    }
    EXPECT_EQ(files_.contents.size(), 1U) << "only the file that was named";
}

}  // namespace
}  // namespace kestrel::app
