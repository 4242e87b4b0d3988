#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "editing/Editor.h"
#include "platform/gdi/Draw.h"
#include "tests/support/EditorRecorder.h"
#include "tests/support/PictureText.h"

namespace kestrel::test {

// A point of the grid, or a cell of the icon.
struct At {
    int x = 0;
    int y = 0;
};

inline editing::HeldButtons Held(editing::Button button) {
    return {button == editing::Button::Left, button == editing::Button::Right};
}

// What a dotted marquee does to a grid, or takes away again.
inline void InvertMarquee(gdi::Surface& grid, const editing::Corners& marquee) {
    grid.state.drawMode = gdi::DrawMode::Invert;
    grid.state.lineStyle = gdi::LineStyle::Dot;
    gdi::DrawBox(grid, marquee.x1, marquee.y1, marquee.x2, marquee.y2, gdi::kBlack);
    grid.state = {};
}

// Whether the views show what a complete redraw of the planes and the selection would.
inline testing::AssertionResult ViewsAreFresh(editing::Editor& editor) {
    const document::Canvas& shown = editor.Views();
    static EditorRecorder views;
    static document::IconDocument icon;
    static document::Canvas fresh(icon, views, views, shown.PicIcon.BackColor());
    icon = editor.Document();
    fresh.SetWindowColor(shown.PicIcon.BackColor());
    fresh.RedrawAll();
    if (auto same = ComparePicture(shown.PicMainCopy, fresh.PicMainCopy); !same) return same;
    const editing::Selection& selection = editor.Selected();
    if (selection.SelectionFloating()) selection.CompositeOver(icon.ChangePlanes());
    fresh.RedrawAll();
    views.repainted.clear();
    if (selection.Exists()) InvertMarquee(fresh.PicMain, selection.Marquee());
    if (auto same = ComparePicture(shown.PicMain, fresh.PicMain); !same) return same << " (grid)";
    return ComparePicture(shown.PicIcon, fresh.PicIcon);
}

// An editor without a window, showing the empty icon.
class EditorTest : public testing::Test {
  protected:
    static constexpr gdi::COLORREF kWindowColor = 0xC8D0D4;

    // One gesture on the grid, as the mouse makes it.
    void Stroke(editing::Button button, const std::vector<At>& points) {
        editor_.PicMain_MouseMove({}, points.front().x, points.front().y);
        editor_.PicMain_MouseDown(button, points.front().x, points.front().y);
        for (const At& point : points)
            editor_.PicMain_MouseMove(Held(button), point.x, point.y);
        editor_.PicMain_MouseUp(button, points.back().x, points.back().y);
    }
    // From the middle of one cell to that of another.
    void Drag(editing::Button button, At from, At to) {
        Stroke(button, {{from.x * 10 + 5, from.y * 10 + 5}, {to.x * 10 + 5, to.y * 10 + 5}});
    }
    void Paint(At cell, gdi::COLORREF color) {
        editor_.EditIcon(editing::Leaves::NoEntry).PaintCell(cell.x, cell.y, color);
    }
    int OpaquePixels() {
        int count = 0;
        for (int i = 0; i < 1024; ++i)
            count += icon_.IsTransparent(i % 32, i / 32) ? 0 : 1;
        return count;
    }

    EditorRecorder views_;
    editing::Editor editor_{views_.Views(), kWindowColor};
    document::IconDocument& icon_ = editor_.Document();
};

}  // namespace kestrel::test
