#include "commands/ModLanguage.h"

#include <array>
#include <span>
#include <string>

#include "commands/CommandTable.h"
#include "i18n/Language.h"

namespace kestrel::commands {

namespace {

enum class Property { Caption, ToolTip, Name };

struct ControlText {
    std::string_view control;
    Property property;
    i18n::Text text;
};

using enum Property;

constexpr auto kControlTexts = std::to_array<ControlText>({
    {"Label1", Caption, {"32 * 32 True Color", "32 * 32 真彩色"}},
    {"ChkPal", Caption, {"New Palette Entry", "自定义颜色"}},
    {"PicForeColor", ToolTip, {"Foreground Color ", "设置前景色"}},
    {"PicBackColor", ToolTip, {"Background Color ", "设置背景色"}},
    {"ImgDefaultColor", ToolTip, {"Select Black and White colors", "默认前景色和背景色"}},
    {"ImgInterchangeColor", ToolTip, {"Exchange colors", "切换前景和背景色"}},
    {"ImgTransparent", ToolTip, {"Transparent", "透明"}},
    {"PicPal", ToolTip, {"Self-Define Color", "双击调色板 自定义颜色"}},
    {"ImgLoadPalette", ToolTip, {"Load Palette", "打开调色板"}},
    {"ImgSavePalette", ToolTip, {"Save Palette", "保存调色板"}},
    {"MenuBar", Name, {"Menu bar", "菜单栏"}},
    {"Toolbar1", Name, {"Toolbar", "工具栏"}},
    {"PicMain", Name, {"Editing grid", "编辑区"}},
    {"PicIcon", Name, {"Actual Size", "图标实际大小"}},
    {"PicTools", Name, {"Tools", "工具"}},
    {"PicPal", Name, {"Color palette", "调色板"}},
    {"StatusBar", Name, {"Status bar", "状态栏"}},
});

using SetText = void (CaptionedWindow::*)(std::string_view control, std::string_view text);

// In the order of Property.
constexpr std::array<SetText, 3> kSetText{&CaptionedWindow::SetControlCaption,
                                          &CaptionedWindow::SetControlToolTip,
                                          &CaptionedWindow::SetControlName};

constexpr int kMenuFontPoints = 9;

bool IsLanguage(std::string_view code) {
    return code == i18n::kChinese || code == i18n::kEnglish;
}

void Build(controls::SmartMenuXP& menu, std::span<const CommandRow> rows) {
    menu.SetFont("Ms Sans Serif", kMenuFontPoints);
    for (const CommandRow& row : rows) {
        controls::MenuItem item;
        item.key = row.key;
        item.parent = row.parent;
        item.kind = row.kind;
        item.caption = row.caption.english;
        item.shortcut = row.shortcut;
        item.picture = row.picture;
        item.enabled = row.run != kNotBuilt;
        item.visible = row.visible;
        menu.AddItem(std::move(item));
    }
}

void ApplyCaptions(std::string_view code, controls::SmartMenuXP& menu,
                   std::span<const CommandRow> rows) {
    for (const CommandRow& row : rows) {
        const std::string_view caption = row.caption.In(code);
        if (!caption.empty()) menu.SetCaption(row.key, caption);
    }
}

}  // namespace

void ApplyMainCaptions(std::string_view code, CaptionedWindow& window) {
    if (!IsLanguage(code)) return;
    for (const ControlText& row : kControlTexts) {
        const SetText set = kSetText[static_cast<std::size_t>(row.property)];
        (window.*set)(row.control, row.text.In(code));
    }
    for (const CommandRow& button : ToolbarRows())
        window.SetButtonToolTip(button.key, button.caption.In(code));
}

void BuildMenuBar(MainMenus& menus) {
    Build(menus.SmartMenuXP1, MenuBarRows());
    Build(menus.SmartMenuXP2, PopupRows());
}

void ApplyMenuCaptions(std::string_view code, MainMenus& menus) {
    if (!IsLanguage(code)) return;
    ApplyCaptions(code, menus.SmartMenuXP1, MenuBarRows());
    ApplyCaptions(code, menus.SmartMenuXP2, PopupRows());
}

}  // namespace kestrel::commands
