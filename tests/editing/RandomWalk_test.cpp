#include "tests/editing/RandomWalk.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/gdi/Blit.h"

namespace kestrel::editing {
namespace {

class RandomWalkTest : public test::EditorTest {
  protected:
    // Whoever watches the grid has been told of every pixel that changed.
    void ExpectRepainted(gdi::Surface watched) {
        const gdi::Surface& now = editor_.Views().PicMain;
        for (const gdi::Rect& area : views_.repainted) {
            gdi::BitBlt(watched, area.left, area.top, area.width, area.height, now, area.left,
                        area.top, gdi::RasterOp::Copy);
        }
        ASSERT_TRUE(test::ComparePicture(watched, now));
    }
    void ExpectSame(const gdi::IconPlanes& expected) {
        ASSERT_TRUE(icon_.Planes().SamePixels(expected));
    }
    // A transparent pixel is black; those that invert the screen come from the opened icon alone.
    bool IsSound() {
        const auto masks = icon_.PicMask().Pixels();
        const auto colors = icon_.PicImage().Pixels();
        return std::ranges::equal(masks, colors, [](gdi::COLORREF mask, gdi::COLORREF color) {
            return mask == gdi::kBlack || (mask == gdi::kWhite && color == gdi::kBlack);
        });
    }

    test::RandomWalk walk_{editor_, views_, 4711};
};

TEST_F(RandomWalkTest, LeavesNothingBehind) {
    formats::IconImage opened{{32, 32, 24, false}, icon_.Planes()};
    for (int i = 0; i < 200; ++i) {
        opened.planes.image.SetPixel(i % 32, i / 6,
                                     static_cast<gdi::COLORREF>(walk_.Below(0x1000000)));
        if (i % 2 == 0) opened.planes.mask.SetPixel(i % 32, i / 6, gdi::kBlack);
    }
    for (const bool fromFile : {false, true}) {
        editor_.ResetDocument();
        if (fromFile) editor_.ReadIconIntoDocument(opened);
        const gdi::IconPlanes first = icon_.Planes();
        for (int i = 0; i < 1500 && !HasFailure(); ++i) {
            const gdi::Surface before = editor_.Views().PicMain;
            walk_.onGesture = [&] { ExpectRepainted(before); };
            walk_.Step();
            ExpectRepainted(before);
            views_.repainted.clear();
            EXPECT_TRUE(fromFile || IsSound());
            EXPECT_TRUE(test::ViewsAreFresh(editor_)) << "step " << i;
            EXPECT_EQ(editor_.Views().PicMain.state.drawMode, gdi::DrawMode::CopyPen);
        }
        editor_.Selected().DropSelection();
        while (editor_.CanRedo())
            editor_.PopRedoSnapshot();
        EXPECT_GT(editor_.History().UndoCount(), 100U);
        std::vector<gdi::IconPlanes> undone;
        while (editor_.CanUndo()) {
            undone.push_back(icon_.Planes());
            editor_.PopUndoSnapshot();
        }
        ExpectSame(first);
        for (; !undone.empty(); undone.pop_back()) {
            editor_.PopRedoSnapshot();
            ExpectSame(undone.back());
        }
        i18n::SetUiLanguage(i18n::kEnglish);
    }
}

}  // namespace
}  // namespace kestrel::editing
