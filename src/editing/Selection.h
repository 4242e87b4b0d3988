#pragma once

#include "document/Canvas.h"
#include "document/IconDocument.h"
#include "editing/Corners.h"
#include "editing/EditorViews.h"
#include "editing/IconEdit.h"
#include "editing/Mouse.h"

namespace kestrel::editing {

// The selected rectangle of whole cells: none, marked (the icon still holds the pixels) or floating
// (only the selection holds them; they are drawn over the icon, which is transparent where they
// were). Once set it is shown through every redraw of the canvas. Points are in grid units; those
// of the marquee are multiples of 10 and, for a floating selection, may lie outside the grid.
class Selection : private document::CanvasOverlay {
  public:
    Selection(const EditParts& parts, GridView& grid);
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;
    ~Selection() override = default;

    // What is selected, as large as the selection and under the rules of the icon's planes. A
    // TargetEdit changes them.
    const gdi::Surface& PicSelImage() const { return planes_.image; }
    const gdi::Surface& PicSelMask() const { return planes_.mask; }
    const gdi::IconPlanes& Planes() const { return planes_; }

    bool SelectionMarked() const { return state_ == State::Marked; }
    bool SelectionFloating() const { return state_ == State::Floating || MovingSelection(); }
    // The floating selection is being dragged.
    bool MovingSelection() const { return state_ == State::Moving; }
    bool Exists() const { return SelectionMarked() || SelectionFloating(); }
    // The top left and the bottom right corner.
    const Corners& Marquee() const { return marquee_; }

    // A new marquee from the grid line nearest to the point, after the old selection is dropped. It
    // follows the pointer until it is marked; an empty one vanishes.
    void BeginMarquee(int x, int y);
    void StretchMarquee(int x, int y);
    void EndMarquee();
    // Marks the whole icon; there is no selection before.
    void MarkAll();

    // Takes hold of the selection at this point, lets it follow the pointer in whole cells, and
    // puts it down where it is, still floating.
    void BeginMove(int x, int y);
    void MoveTo(int x, int y);
    void EndMove();
    // Moves it by whole cells at once.
    void MoveBy(int columns, int rows);

    // Lifts the marked pixels out of the icon.
    void LiftSelection();
    // Lets these planes float with their top left corner there; there is no selection before.
    void Float(gdi::IconPlanes planes, GridPoint leftTop = {});
    // Puts a floating selection into the icon and records that; a marked one leaves no trace.
    void DropSelection();
    // Discards the selected pixels and records that; without a selection nothing happens. The
    // selection planes keep them.
    void Delete();
    // Ends it without touching pixels or views.
    void Forget();

    // Puts what is selected onto the icon's planes, as dropping it now would.
    void CompositeOver(gdi::IconPlanes& icon) const;

    // Gives the grid the pointer for moving where the point lies in the selection.
    void UpdateMoveCursor(int x, int y);
    bool HasMoveCursor() const { return moveCursor_; }

  private:
    friend class TargetEdit;

    // Drawing: a new marquee follows the pointer. Moving: a floating selection does.
    enum class State { None, Drawing, Marked, Floating, Moving };

    void DrawUnderLines(gdi::Surface& grid) const override;
    void DrawOverLines(gdi::Surface& grid) const override;
    void DrawOnPreview(gdi::Surface& preview) const override;

    gdi::Rect Cells() const;
    void DrawMarquee(gdi::Surface& grid) const;
    void InvertMarquee();
    bool MarqueeIsShown() const { return state_ != State::None && state_ != State::Moving; }
    // Shows or hides the marquee on the grid as the state asks.
    void Enter(State next);
    void EraseMarquee();
    void ShowMoveCursor(bool shown);
    void Mark();
    void CopyAreaToSelection();
    void CompositeSelection();
    void ShowFloatingSelection();
    void StampSelection();
    // Shows planes that have changed, floating over the icon or written into it where they were
    // marked.
    void ShowChanged();
    // False where it cannot go.
    bool PlaceAt(int x1, int y1);

    EditParts parts_;
    GridView& grid_;
    gdi::IconPlanes planes_{0, 0};
    State state_ = State::None;
    Corners marquee_;
    // From the marquee's top left corner to where it is held.
    GridPoint grip_;
    bool moveCursor_ = false;
};

}  // namespace kestrel::editing
