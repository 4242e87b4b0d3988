#include "windows/widgets/MenuView.h"

#include <QActionGroup>
#include <QFontMetrics>

#include "desktop/Text.h"
#include "windows/widgets/DesktopFont.h"
#include "windows/widgets/PictureIcon.h"

namespace kestrel::widgets {

namespace {

using controls::ItemKind;
using controls::MenuItem;

// A longer caption, such as a deep path, is cut in its middle.
constexpr int kLongestCaption = 40;  // characters, none wider than 12 pixels
constexpr int kWidestCaption = 480;  // pixels

QFont MenuFont(const controls::SmartMenuXP& menu) {
    constexpr int kPixelsAnInch = 96;
    constexpr int kPointsAnInch = 72;
    QFont font;
    font.setFamilies(QStringList{QString::fromStdString(menu.FontName())} + font.families());
    font.setPixelSize(menu.FontPoints() * kPixelsAnInch / kPointsAnInch);
    return font;
}

// A caption such as "(F) 文件" shows its letter in front; it opens the menu like an underlined one.
QString WithMnemonic(QString caption) {
    if (caption.size() > 2 && caption[0] == QLatin1Char('(') && caption[2] == QLatin1Char(')')) {
        caption.insert(1, QLatin1Char('&'));
    }
    return caption;
}

// The marks that override the direction of the text after them.
bool TurnsReading(char16_t letter) {
    return (letter >= u'\x202A' && letter <= u'\x202E') ||
           (letter >= u'\x2066' && letter <= u'\x2069');
}

// File names may hold anything: controls, which would split the caption or turn its reading, are
// shown as signs.
QString Readable(QString caption) {
    for (QChar& letter : caption) {
        constexpr char16_t kControlPictures = u'\x2400';
        if (letter < QLatin1Char(' ')) letter = QChar(kControlPictures + letter.unicode());
        if (TurnsReading(letter.unicode())) letter = QChar::ReplacementCharacter;
    }
    return caption;
}

// Measuring loads the fonts, which a start can do without: only long captions are measured.
QString Fitting(const QString& caption, const QFont& font) {
    if (caption.size() <= kLongestCaption) return caption;
    return QFontMetrics(font).elidedText(caption, Qt::ElideMiddle, kWidestCaption,
                                         Qt::TextShowMnemonic);
}

}  // namespace

MenuView::MenuView(controls::SmartMenuXP& menu, const controls::ImageList& pictures)
    : menu_(menu), pictures_(pictures) {
    menu_.onChanged = [this](const MenuItem& item) { Follow(item); };
}

void MenuView::FillBar(QMenuBar& bar) {
    font_ = MenuFont(menu_);
    bar.setFont(font_);
    for (const MenuItem& item : menu_.Items()) {
        if (item.parent.empty()) bar.addAction(NewAction(item));
    }
}

void MenuView::FollowDesktopFont() {
    font_.setPixelSize(AsOnDesktop(MenuFont(menu_).pixelSize()));
    for (const auto& [key, submenu] : submenus_)
        submenu->setFont(font_);
    for (const MenuItem& item : menu_.Items())
        Follow(item);
}

void MenuView::FollowDesktopFont(QMenuBar& bar, QSize room) {
    FollowDesktopFont();
    const int designed = MenuFont(menu_).pixelSize();
    int pixels = font_.pixelSize();
    const auto fits = [&] {
        QFont font = font_;
        font.setPixelSize(pixels);
        bar.setFont(font);
        const QSize needed = bar.sizeHint();
        return needed.width() <= room.width() && needed.height() <= room.height();
    };
    while (!fits() && pixels > designed)
        --pixels;
}

QMenu* MenuView::Popup(std::string_view root) {
    if (!submenus_.contains(root) && menu_.IsSubmenu(root)) {
        font_ = MenuFont(menu_);
        NewAction(*menu_.Find(root));
    }
    FollowDesktopFont();
    const auto found = submenus_.find(root);
    return found == submenus_.end() ? nullptr : found->second.get();
}

QAction* MenuView::ActionOf(std::string_view key) const {
    const auto found = actions_.find(key);
    return found == actions_.end() ? nullptr : found->second;
}

QAction* MenuView::NewAction(const MenuItem& item) {
    QAction* action = nullptr;
    if (menu_.IsSubmenu(item.key)) {
        action = NewSubmenu(item)->menuAction();
    } else {
        action = new QAction(this);
        action->setShortcut(QKeySequence(desktop::ToText(item.shortcut)));
        connect(action, &QAction::triggered, this, [this, &item] { Click(item.key); });
    }
    action->setSeparator(item.kind == ItemKind::Separator);
    action->setCheckable(item.kind == ItemKind::Option);
    if (item.picture != 0) action->setIcon(PictureIcon(pictures_, item.picture));
    actions_[item.key] = action;
    Follow(item);
    return action;
}

QMenu* MenuView::NewSubmenu(const MenuItem& item) {
    auto& submenu = submenus_[item.key];
    submenu = std::make_unique<QMenu>();
    submenu->setFont(font_);
    connect(submenu.get(), &QMenu::aboutToShow, this, [this, &item] { Click(item.key); });
    AddChildren(*submenu, item.key);
    return submenu.get();
}

void MenuView::AddChildren(QMenu& submenu, std::string_view parent) {
    // Options of one submenu get the round marks; which are marked is the menu's business.
    QActionGroup* options = nullptr;
    for (const MenuItem& item : menu_.Items()) {
        if (item.parent != parent) continue;
        QAction* action = NewAction(item);
        submenu.addAction(action);
        if (item.kind != ItemKind::Option) continue;
        if (options == nullptr) {
            options = new QActionGroup(&submenu);
            options->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
        }
        options->addAction(action);
    }
}

void MenuView::Follow(const MenuItem& item) {
    QAction* action = ActionOf(item.key);
    if (action == nullptr) return;
    action->setText(WithMnemonic(Fitting(Readable(desktop::ToText(item.caption)), font_)));
    // For screen readers, who are told a heading's own name where its menu begins.
    if (action->menu() != nullptr)
        action->menu()->setAccessibleName(action->text().remove(QLatin1Char('&')).trimmed());
    action->setEnabled(item.enabled);
    action->setVisible(item.visible);
    action->setChecked(item.checked);
}

void MenuView::Click(std::string_view key) {
    // The desktop has marked a chosen option already.
    for (const MenuItem& item : menu_.Items()) {
        if (item.kind == ItemKind::Option) Follow(item);
    }
    if (menu_.onClick) menu_.onClick(key);
}

}  // namespace kestrel::widgets
