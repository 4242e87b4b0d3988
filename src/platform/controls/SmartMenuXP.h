#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace kestrel::controls {

enum class ItemKind { Item, IconItem, Option, Separator };

// One item of a menu. Items of a parent stand in the order they were added in; an empty parent is
// the menu itself, and an item that others name as their parent opens a submenu.
struct MenuItem {
    std::string key;
    std::string parent;
    ItemKind kind = ItemKind::Item;
    // '&' stands before the letter that chooses the item by keyboard, "&&" for the letter itself.
    std::string caption;
    // As in "Ctrl+Shift+S"; empty for none.
    std::string shortcut;
    // Number of its picture in the image list, 0 for none.
    int picture = 0;
    bool checked = false;
    bool enabled = true;
    bool visible = true;
};

// A menu as data: its items and their state by key. What is on the screen follows it through
// `onChanged` and reports the user's choices to `onClick`. Setting a key that is not there changes
// nothing.
class SmartMenuXP {
  public:
    void AddItem(MenuItem item) { items_.push_back(std::move(item)); }
    void SetFont(std::string name, int points);

    void SetCaption(std::string_view key, std::string_view caption);
    void SetChecked(std::string_view key, bool checked);
    void SetEnabled(std::string_view key, bool enabled);
    void SetVisible(std::string_view key, bool visible);

    const std::deque<MenuItem>& Items() const { return items_; }
    // Null when there is none.
    const MenuItem* Find(std::string_view key) const;
    bool IsSubmenu(std::string_view key) const;
    const std::string& FontName() const { return fontName_; }
    int FontPoints() const { return fontPoints_; }

    // The item chosen by the user, or the submenu that is being opened.
    std::function<void(std::string_view key)> onClick;
    // This item looks different from now on.
    std::function<void(const MenuItem& item)> onChanged;

  private:
    template <typename Value>
    void Set(std::string_view key, Value MenuItem::*field, const Value& value);

    // Views refer to the items.
    std::deque<MenuItem> items_;
    std::string fontName_;
    int fontPoints_ = 0;
};

}  // namespace kestrel::controls
