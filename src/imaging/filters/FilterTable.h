#pragma once

#include <span>
#include <string_view>

#include "imaging/filters/Filter.h"

namespace kestrel::filters {

// A command of the filter menu: the number of its filter and the parameter that it gives it. For
// gamma the user is asked; the row's parameter is the factor that changes nothing. The shell
// program knows it by its name, too, and tells in a line what it does.
struct FilterRow {
    std::string_view key;
    std::string_view name;
    std::string_view meaning;
    int FilterId;
    int Param;
    Filter filter;
};

// The number of gamma correction.
inline constexpr int kGammaFilter = 31;

std::span<const FilterRow> Filters();
// The command with this key; null for none.
const FilterRow* FindFilter(std::string_view key);

}  // namespace kestrel::filters
