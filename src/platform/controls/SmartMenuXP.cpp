#include "platform/controls/SmartMenuXP.h"

#include <algorithm>
#include <utility>

namespace kestrel::controls {

namespace {

template <typename Items>
auto ItemOf(Items& items, std::string_view key) {
    return std::find_if(items.begin(), items.end(),
                        [key](const MenuItem& item) { return item.key == key; });
}

}  // namespace

void SmartMenuXP::SetFont(std::string name, int points) {
    fontName_ = std::move(name);
    fontPoints_ = points;
}

template <typename Value>
void SmartMenuXP::Set(std::string_view key, Value MenuItem::*field, const Value& value) {
    const auto item = ItemOf(items_, key);
    if (item == items_.end() || (*item).*field == value) return;
    (*item).*field = value;
    if (onChanged) onChanged(*item);
}

void SmartMenuXP::SetCaption(std::string_view key, std::string_view caption) {
    Set(key, &MenuItem::caption, std::string(caption));
}

void SmartMenuXP::SetChecked(std::string_view key, bool checked) {
    Set(key, &MenuItem::checked, checked);
}

void SmartMenuXP::SetEnabled(std::string_view key, bool enabled) {
    Set(key, &MenuItem::enabled, enabled);
}

void SmartMenuXP::SetVisible(std::string_view key, bool visible) {
    Set(key, &MenuItem::visible, visible);
}

const MenuItem* SmartMenuXP::Find(std::string_view key) const {
    const auto item = ItemOf(items_, key);
    return item == items_.end() ? nullptr : &*item;
}

bool SmartMenuXP::IsSubmenu(std::string_view key) const {
    return std::any_of(items_.begin(), items_.end(),
                       [&](const MenuItem& item) { return item.parent == key; });
}

}  // namespace kestrel::controls
