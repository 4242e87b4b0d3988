#include "i18n/MenuTable.h"

#include <array>

namespace kestrel::i18n {

namespace {

using enum ItemKind;

// Captions carry their blanks: they keep the entries apart from the shortcuts beside them.
constexpr std::array kMenuBar = {
    MenuItem{"mnuFile", "", Item, {"&File ", "(F) 文件  "}, "", 0},
    MenuItem{"mnuNew", "mnuFile", IconItem, {"&New Icon", "新图标   "}, "Ctrl+N", 1},
    MenuItem{"Separator10", "mnuFile", Separator, {}, "", 0},
    MenuItem{"mnuOpen", "mnuFile", IconItem, {"&Open", "打开  "}, "Ctrl+O", 2},
    MenuItem{"Separator11", "mnuFile", Separator, {}, "", 0},
    MenuItem{"mnuSave", "mnuFile", IconItem, {"&Save", "保存  "}, "Ctrl+S", 4},
    MenuItem{"mnuSaveAs", "mnuFile", Item, {"Save &As ...", "保存为...   "}, "Ctrl+Shift+S", 0},
    MenuItem{"Separator13", "mnuFile", Separator, {}, "", 0},
    MenuItem{"mnuExit", "mnuFile", IconItem, {"E&xit", "关闭  "}, "Alt+F4", 39},
};

}  // namespace

std::span<const MenuItem> MenuBar() {
    return kMenuBar;
}

}  // namespace kestrel::i18n
