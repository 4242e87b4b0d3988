#include <QMenu>
#include <map>

#include "app/FrmIcoEd.h"
#include "i18n/Captions.h"
#include "i18n/MenuTable.h"
#include "platform/qt/Text.h"

namespace kestrel::app {

namespace {

using qt::ToText;

// A Chinese caption such as "(F) 文件" shows its letter in front; it opens the menu like an
// underlined one.
QString WithMnemonic(std::string_view caption) {
    QString text = ToText(caption);
    if (text.size() > 2 && text.front() == QLatin1Char('(') && text[2] == QLatin1Char(')')) {
        text.insert(1, QLatin1Char('&'));
    }
    return text;
}

}  // namespace

void FrmIcoEd::BuildMenuBar() {
    std::map<std::string_view, QMenu*> menus;
    for (const i18n::MenuItem& item : i18n::MenuBar()) {
        QAction* action = nullptr;
        if (item.parent.empty()) {
            menus[item.key] = menuBar_->addMenu(QString());
            action = menus[item.key]->menuAction();
        } else if (item.kind == i18n::ItemKind::Separator) {
            menus[item.parent]->addSeparator();
        } else {
            action = menus[item.parent]->addAction(QString());
            action->setShortcut(QKeySequence(ToText(item.shortcut)));
            connect(action, &QAction::triggered, this, [this, key = item.key] {
                RunCommand([this, key] { dispatch_.SmartMenuXP1_Click(key); });
            });
        }
        menuActions_.push_back(action);
    }
}

void FrmIcoEd::ApplyMenuCaptions() {
    for (std::size_t i = 0; i < menuActions_.size(); ++i) {
        if (menuActions_[i] == nullptr) continue;
        menuActions_[i]->setText(WithMnemonic(i18n::MenuBar()[i].caption.Now()));
    }
}

void FrmIcoEd::ApplyMainCaptions() {
    // The place is narrow: the size on the first line, the depth below.
    label1_->setText(
        ToText(i18n::kLabel1.Now()).replace(QLatin1String("32 * 32 "), QLatin1String("32 * 32\n")));
}

// No Edit commands in the menu yet.
void FrmIcoEd::RefreshEditCommands() {}

}  // namespace kestrel::app
