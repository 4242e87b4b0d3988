#include "imaging/filters/mFilterG.h"

#include <algorithm>

#include "imaging/filters/FilterTable.h"

namespace kestrel::filters {

void mFilterG::RunFilter(int FilterId, gdi::Surface& picture, int Param) {
    if (FilterBusy) return;
    const auto rows = Filters();
    const auto row = std::find_if(rows.begin(), rows.end(), [FilterId](const FilterRow& filter) {
        return filter.FilterId == FilterId;
    });
    if (row == rows.end()) return;
    FilterBusy = true;
    const PixelArray FilterSource(picture);
    PixelArray FilterTarget(FilterSource);
    row->filter({FilterSource, FilterTarget, Param, loop_, random_});
    FilterTarget.CopyTo(picture);
    FilterBusy = false;
}

}  // namespace kestrel::filters
