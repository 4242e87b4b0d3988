#pragma once

#include <span>
#include <string_view>

#include "imaging/filters/FilterTable.h"
#include "imaging/filters/mFilterG.h"
#include "platform/gdi/IconPlanes.h"

namespace kestrel::imaging {

// What the editor does with a selection: the operation changes its pixels, with or without an
// entry of the history; lifts it first, since it comes to cover other cells; or puts it down and
// changes the whole icon.
enum class OnSelection { Recorded, Unrecorded, Lifted, PutDown };

// A command of the Image or Effect menu that needs no dialog of its own: a function, or a filter.
struct Operation {
    std::string_view key;
    // What it is called where there is no menu, and a line that tells what it does.
    std::string_view name;
    std::string_view meaning;
    OnSelection onSelection = OnSelection::Recorded;
    // Changes both planes alike. Events may run in between.
    void (*change)(gdi::IconPlanes& planes, services::MessageLoop& loop) = nullptr;
    const filters::FilterRow* filter = nullptr;

    // Gamma alone: the factor times 100, from 1 on, which the user is asked for.
    bool TakesValue() const;
};

// All of them, filters first.
std::span<const Operation> Operations();
// Null for a key that is no operation's.
const Operation* FindOperation(std::string_view key);
// By its name or key, in any letter case.
const Operation* FindNamedOperation(std::string_view name);

// Changes the planes; those of a part of an icon are filtered from their own pixels alone. `value`
// is used where the operation takes one.
void RunOperation(const Operation& operation, int value, gdi::IconPlanes& planes,
                  filters::mFilterG& filters);

}  // namespace kestrel::imaging
