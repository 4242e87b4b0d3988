#include <QTimer>
#include <map>
#include <set>

#include "imaging/filters/FilterTable.h"
#include "tests/windows/WindowTest.h"

namespace kestrel::windows {
namespace {

using commands::CommandRow;

// A window for one command, with a red and a green pixel and a blue one that was undone. What is
// opened or started fails, and the message tells what it was.
class CommandWindow : public test::WindowTest {
  public:
    // All is selected where that makes a difference.
    explicit CommandWindow(const CommandRow& row) {
        Editor().ColorPalette().SetColor(0, 1);
        for (const auto& [x, y, color] :
             {std::tuple{3, 1, 0x0000FFU}, {20, 25, 0x00FF00U}, {9, 9, 0xFF0000U}}) {
            Editor().EditIcon(editing::Leaves::Entry).PaintCell(x, y, color);
        }
        Editor().PopUndoSnapshot();
        if (row.enabled != commands::Always) Editor().SelectAll();
        gdi::Surface picture(2, 1);  // the other pixel is transparent
        picture.Row(0)[0] = 0xFF000000;
        given_.clipboard.Offer(picture);
        given_.desktop.choice = "/none";
        given_.desktop.printer = services::ChosenPrinter{"", "/a.pdf", 1};
        Icon().FilePath = "/b.ico";
        Icon().Modified = false;
    }
    ~CommandWindow() override { TearDown(); }
    void TestBody() override {}

    // Whether it can be chosen in a menu or those below it.
    static bool Offers(const QWidget* menu, QAction* item) {
        const QList<QAction*> actions = menu->actions();
        return std::ranges::any_of(actions, [item](QAction* action) {
            return action->isVisible() && action->isEnabled() &&
                   (action == item || (action->menu() != nullptr && Offers(action->menu(), item)));
        });
    }
    void ChooseInBar(const CommandRow& row) {
        if (row.shortcut.empty()) {
            if (Offers(window_.findChild<QMenuBar*>(), Item(row.key))) Item(row.key)->trigger();
        } else {
            const auto keys = QKeySequence(std::string(row.shortcut).c_str())[0];
            QTest::keyClick(&window_, keys.key(), keys.keyboardModifiers());
        }
    }
    void ChooseInPopup(const CommandRow& row) { window_.Menus().SmartMenuXP2.onClick(row.key); }
    void Press(const CommandRow& row) { window_.Toolbar1().Button(row.key)->click(); }
    static auto VisibleWindows() {
        return std::ranges::count_if(QApplication::topLevelWidgets(), &QWidget::isVisible);
    }
    // The icon's pixels, then all else that commands change.
    std::string State() {
        std::ostringstream state;
        const gdi::IconPlanes seen = Editor().Composited();
        for (int i = 0; i < 1024; ++i) {
            if (!seen.IsTransparent(i % 32, i / 32))
                state << std::dec << i % 32 << "," << i / 32 << " " << std::hex
                      << seen.image.GetPixel(i % 32, i / 32) << " ";
        }
        const gdi::PaletteColors& colors = Editor().ColorPalette().Colors();
        state << Editor().History().UndoCount() << Editor().Selected().Exists() << colors[0] << " "
              << colors[1] << given_.clipboard.image->Width() << VisibleWindows() << dialog_
              << window_.windowTitle().toStdString() << given_.printer.printed;
        for (const auto& box : given_.boxes.shown)
            state << box.text;
        for (const auto& [path, bytes] : given_.files.contents)
            state << path;
        return state.str();
    }
    // The state after a choice, whose dialog is cancelled; empty where nothing has changed.
    std::string After(void (CommandWindow::*choose)(const CommandRow& row), const CommandRow& row) {
        const std::string before = State();
        QTimer::singleShot(0, &window_, [this] {
            QWidget* dialog = QApplication::activeModalWidget();
            if (dialog == nullptr) return;
            dialog_ = dialog->windowTitle().toStdString();
            dialog->close();
        });
        (this->*choose)(row);
        QApplication::processEvents();
        const std::string after = State();
        return after == before ? "" : after;
    }

  private:
    std::string dialog_;
};

TEST(CommandRows, EachDoesSomethingOfItsOwnWhereverItIsChosen) {
    std::set<std::string> states;
    // By picture or shortcut, which a command has wherever it stands.
    std::map<std::string, std::string> known;
    for (const auto& [rows, choose] :
         {std::pair{commands::MenuBarRows(), &CommandWindow::ChooseInBar},
          {commands::PopupRows(), &CommandWindow::ChooseInPopup},
          {commands::ToolbarRows(), &CommandWindow::Press}}) {
        for (const CommandRow& row : rows) {
            const bool isHeading = std::ranges::count(rows, row.key, &CommandRow::parent) > 0;
            if (isHeading || row.kind == controls::ItemKind::Separator) continue;
            const std::string state = CommandWindow(row).After(choose, row);
            EXPECT_EQ(!state.empty(), row.visible && row.run != commands::kNotBuilt) << row.key;
            std::string look(row.shortcut.empty() ? row.key : row.shortcut);
            if (row.picture != 0) look = std::to_string(row.picture);
            const auto [twin, isNew] = known.emplace(look, state);
            EXPECT_EQ(twin->second, state) << row.key;
            // Some filters find nothing to change in two pixels.
            const bool isOwn = isNew && !filters::FindFilter(row.key) && !state.empty();
            EXPECT_TRUE(!isOwn || states.insert(state).second) << row.key;
        }
    }
    for (const auto& [look, pixels] : {std::pair{"mnuMirrorOpts0", "3,1 ff 28,1 ff "},
                                       {"mnuMirrorOpts1", "11,25 ff00 20,25 ff00 "},
                                       {"mnuMirrorOpts2", "3,1 ff 3,30 ff "},
                                       {"mnuMirrorOpts3", "20,6 ff00 20,25 ff00 "},
                                       {"15", "25,11 ff00 1,28 ff "},  // rotated left
                                       {"16", "30,3 ff 6,20 ff00 "},
                                       {"17", "28,1 ff 11,25 ff00 "},  // flipped across
                                       {"18", "20,6 ff00 3,30 ff "},
                                       {"32", "3,1 ffff00 20,25 ff00ff "},  // inverted
                                       {"9", "0,0 0 3,1 ff 20,25 ff00 "},   // pasted
                                       {"mnuEditOpts6", "0,0 0 1,0 ffffff 3,1 ff 20,25 ff00 "}})
        EXPECT_TRUE(known[look].starts_with(pixels)) << look << ": " << known[look];
}

}  // namespace
}  // namespace kestrel::windows
