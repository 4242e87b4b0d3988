#include "windows/FrmIcoEd.h"

#include "commands/CommandTable.h"
#include "desktop/Pictures.h"
#include "desktop/ScreenPixels.h"
#include "i18n/Language.h"
#include "resources/ImageList.h"
#include "resources/WellPictures.h"
#include "tools/MagnifierSettings.h"
#include "windows/WindowColor.h"
#include "windows/widgets/AccessibleCells.h"
#include "windows/widgets/WindowDesign.h"

namespace kestrel::windows {

namespace {

constexpr QSize kToolbarButton(28, 28);

}  // namespace

FrmIcoEd::FrmIcoEd(const commands::MainServices& services)
    : application_(services.application),
      help_(services.help),
      clipboard_(services.clipboard),
      tray_(services.tray),
      pictures_(resources::kImageList, resources::kImageListInks),
      wellPictures_(resources::kWellPictures, resources::kImageListInks),
      barView_(menus_.SmartMenuXP1, pictures_),
      popupView_(menus_.SmartMenuXP2, pictures_),
      menuBar_(std::make_unique<QMenuBar>(this)),
      toolbar1_(std::make_unique<widgets::ToolBar>(pictures_, kToolbarButton, this)),
      editor_(
          {grid_, preview_, tools_, colors_, statusBar_, *this, services.application, services.log},
          WindowColor()),
      dialogs_(*this, services.screen),
      magnifier_({services.screen, services.application, services.settings, *this, statusBar_}),
      commands_(editor_, {*this, controls_, grid_, owner_, menus_, dialogs_, magnifier_, task_},
                services) {}

FrmIcoEd::~FrmIcoEd() {
    editor_.EndGesture();
    // Also where the program ends on a signal: it keeps its settings.
    magnifier_.Close();
    clipboard_.onChanged = nullptr;
    tray_.onMenu = nullptr;
    // Hidden first: no event must reach panes whose editor is gone.
    hide();
}

void FrmIcoEd::Form_Load(const std::string& pathToOpen) {
    FollowDesktopColors();
    setMouseTracking(true);
    setAcceptDrops(true);
    LayOutControls();
    BuildToolbar();
    BuildKeys();
    ShowTextControls(false);
    commands::ApplyMainCaptions(i18n::UiLanguage(), controls_);
    BuildMenus();

    clipboard_.onChanged = [this] { RefreshEditCommands(); };
    commands_.recent.LoadRecentFiles();
    editor_.ResetDocument();
    PlaceOnScreen();
    if (commands_.recovery.MayOffer()) {
        // Once the window stands.
        QMetaObject::invokeMethod(
            this, [this, pathToOpen] { OfferRecovery(pathToOpen); }, Qt::QueuedConnection);
    } else if (!pathToOpen.empty()) {
        commands_.documents.OpenNamed(pathToOpen);
    }
    RefreshEditCommands();
    statusBar_.SetStatusPanel(editing::StatusPanel::Zoom, tools::kGridRatio);
}

bool FrmIcoEd::Form_Unload() {
    if (!commands_.documents.PromptSaveChanges()) return false;
    editor_.History().ClearUndoHistory();
    commands_.tray.Unload();
    help_.Close();
    magnifier_.Close();
    return true;
}

void FrmIcoEd::OfferRecovery(const std::string& pathToOpen) {
    runner_.Run([&] {
        commands_.recovery.Offer();
        if (!pathToOpen.empty()) commands_.documents.OpenNamed(pathToOpen);
    });
}

bool FrmIcoEd::MayEndSession(bool mayAsk) {
    if (!mayAsk || QApplication::activeModalWidget() != nullptr) return true;
    while (QWidget* const menu = QApplication::activePopupWidget())
        menu->close();
    bool mayEnd = true;
    runner_.Run([&] { mayEnd = commands_.documents.PromptSaveChanges(); });
    return mayEnd;
}

void FrmIcoEd::Form_OLEDragDrop(const std::string& pathToOpen) {
    runner_.Run([&] { commands_.documents.OpenNamed(pathToOpen); });
}

// The window and the preview's ground share one colour.
void FrmIcoEd::FollowDesktopColors() {
    FollowWindowColor(*this);
    editor_.SetWindowColor(WindowColor());
}

void FrmIcoEd::SetTitle(const std::string& title) {
    widgets::ShowTitle(*this, QString::fromStdString(title));
    commands_.tray.TitleChanged(title);
}

void FrmIcoEd::Unload() {
    // After the command that asked for it has returned.
    QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

gdi::Rect FrmIcoEd::ScreenArea() const {
    return desktop::PixelsOf(*screen(), frameGeometry());
}

void FrmIcoEd::LanguageChanged() {
    editor_.ShowTitle();
    statusBar_.Clear();
    colors_.FollowLanguage();
    widgets::TellAccessibleCells(tools_.PicTools());
    magnifier_.ShowCaptions(i18n::UiLanguage());
    commands_.tray.LanguageChanged();
    FitTexts();
}

}  // namespace kestrel::windows
