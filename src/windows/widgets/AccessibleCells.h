#pragma once

namespace kestrel::widgets {

class CellSurface;

// Shows every CellSurface from now on to screen readers as a list of its cells.
void InstallAccessibleCells();

// Tells screen readers that cells may be called otherwise now, or that one is in use instead of
// another.
void TellAccessibleCells(CellSurface& cells);
// Tells them that the keyboard is on the marked cell, where it is.
void TellAccessibleFocus(CellSurface& cells);

}  // namespace kestrel::widgets
