#pragma once

#include <QMenu>
#include <QMenuBar>
#include <QObject>
#include <map>
#include <string_view>

#include "platform/controls/ImageList.h"
#include "platform/controls/SmartMenuXP.h"

namespace kestrel::widgets {

// Shows a menu as menus of the desktop and hands its clicks on. The menu must be filled before
// it is shown and outlive the view, as must the pictures.
class MenuView : public QObject {
  public:
    MenuView(controls::SmartMenuXP& menu, const controls::ImageList& pictures);
    ~MenuView() override { menu_.onChanged = nullptr; }

    // In the desktop's size of text, which loads the fonts; the bar keeps to a smaller size where
    // it would be larger than its room.
    void FollowDesktopFont(QMenuBar& bar, QSize room);

    // Shows the whole menu as a bar, with its shortcuts for the bar's window.
    void FillBar(QMenuBar& bar);
    // The submenu of `root`, to be shown anywhere. Its shortcuts are only texts. Null when no item
    // is below `root`.
    QMenu* Popup(std::string_view root);

    // What shows an item; null for unknown keys.
    QAction* ActionOf(std::string_view key) const;

  private:
    void FollowDesktopFont();
    QAction* NewAction(const controls::MenuItem& item);
    QMenu* NewSubmenu(const controls::MenuItem& item);
    void AddChildren(QMenu& submenu, std::string_view parent);
    void Follow(const controls::MenuItem& item);
    void Click(std::string_view key);

    controls::SmartMenuXP& menu_;
    const controls::ImageList& pictures_;
    // Set when the menu is shown first.
    QFont font_;
    std::map<std::string_view, QAction*> actions_;
    std::map<std::string_view, std::unique_ptr<QMenu>> submenus_;
};

}  // namespace kestrel::widgets
