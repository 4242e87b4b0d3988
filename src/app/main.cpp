#include <QApplication>
#include <QScreen>
#include <QTimer>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <optional>

#include "app/Startup.h"
#include "desktop/DialogStyle.h"
#include "desktop/EndOfSession.h"
#include "desktop/LibraryTranslator.h"
#include "desktop/Pictures.h"
#include "desktop/QtApplication.h"
#include "desktop/QtClipboard.h"
#include "desktop/QtDesktopDialogs.h"
#include "desktop/QtHelpViewer.h"
#include "desktop/QtMessageBoxes.h"
#include "desktop/QtShell.h"
#include "desktop/QtTray.h"
#include "desktop/RecentlyUsed.h"
#include "desktop/TwoColorWindows.h"
#include "desktop/XScreen.h"
#include "document/ApplicationIcon.h"
#include "document/JournalFolder.h"
#include "editing/WorkLog.h"
#include "i18n/Language.h"
#include "platform/system/DiskFiles.h"
#include "platform/system/FileRegistry.h"
#include "platform/system/Folders.h"
#include "platform/system/InstanceLock.h"
#include "platform/system/Locale.h"
#include "settings/Settings.h"
#include "windows/FrmIcoEd.h"

namespace {

using namespace kestrel;

app::StartupFacts FactsOf(const QScreen* screen, bool anotherInstanceRuns) {
    app::StartupFacts facts;
    facts.systemLcid = system::GetSystemDefaultLCID();
    facts.anotherInstanceRuns = anotherInstanceRuns;
    if (screen != nullptr) {
        facts.screenWidth = qRound(screen->size().width() * screen->devicePixelRatio());
        facts.screenHeight = qRound(screen->size().height() * screen->devicePixelRatio());
        facts.bitsPerPixel = screen->depth();
    }
    facts.applicationFolder = system::ApplicationFolder();
    facts.windowsDirectory = system::WindowsDirectory();
    return facts;
}

// A file in a folder; none where there is no folder.
std::string FileIn(const std::string& folder, const std::string& name) {
    return folder.empty() ? "" : folder + (folder.ends_with('/') ? "" : "/") + name;
}

// Named after the executable. In its folder while it is one's own copy of the program, else in the
// user's configuration folder.
std::string SettingsFile() {
    std::string folder = system::ApplicationFolder();
    std::error_code unknown;
    const bool installed =
        std::filesystem::is_directory(system::InstalledDataFolder(folder), unknown);
    if (installed || !system::IsOwnFolder(folder)) folder = system::ConfigFolder();
    return FileIn(folder, system::ExecutableName() + ".ini");
}

// The arguments as the one line that was typed, byte for byte: file names need not be UTF-8.
std::string CommandLine(int argc, char* argv[]) {
    std::string line;
    for (int i = 1; i < argc; ++i)
        line += (i > 1 ? " " : "") + std::string(argv[i]);
    return line;
}

// After this long the window has been drawn; after the longer one it is quiet.
constexpr std::chrono::milliseconds kDrawn{150};
constexpr std::chrono::milliseconds kSettled{500};

std::uint32_t SeedOfClock() {
    return static_cast<std::uint32_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

// Answers what needs no window, in the system's language. The program's result; nothing when there
// is nothing to answer.
std::optional<int> PrintWhatIsAsked(const std::string& commandLine) {
    i18n::SetUiLanguage(i18n::LanguageOfLocale(std::to_string(system::GetSystemDefaultLCID())));
    const std::string text = app::PrintedFor(commandLine, KESTREL_VERSION);
    if (text.empty()) return std::nullopt;
    return std::fputs(text.c_str(), stdout) < 0 || std::fflush(stdout) != 0 ? 1 : 0;
}

// What the desktop knows the program by, also in boxes that come up before the window.
void IntroduceProgram() {
    QApplication::setApplicationName(QStringLiteral("KestrelIconEditor"));
    QApplication::setApplicationVersion(QStringLiteral(KESTREL_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("KestrelIconEditor"));
    QGuiApplication::setWindowIcon(
        QPixmap::fromImage(desktop::ToImage(document::ApplicationIcon())));
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc == 2) {
        if (const auto result = PrintWhatIsAsked(argv[1])) return *result;
    }
    // A write beyond the file size limit is a failed save, not the end of the program. Not ignored:
    // programs that are started would inherit that.
    std::signal(SIGXFSZ, [](int /*signal*/) {});
    QApplication application(argc, argv);
    // The bar stands in the window; asking for a native one would load the session bus at the
    // start.
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    // Other windows may be open while the main window is in the tray.
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new desktop::DialogStyle);
    desktop::LibraryTranslator translator;
    QApplication::installTranslator(&translator);
    IntroduceProgram();
    desktop::TwoColorWindows twoColorWindows;
    if (desktop::TwoColorWindows::IsNeeded()) application.installEventFilter(&twoColorWindows);

    const auto lock = system::InstanceLock::Take(system::RuntimeFolder(), "KestrelIconEditor",
                                                 system::CurrentDisplay());
    system::DiskFiles files;
    system::FileRegistry registry(files, FileIn(system::ConfigFolder(), "registry.ini"));
    settings::Settings settings(files, SettingsFile());
    desktop::QtMessageBoxes boxes;
    const app::StartupFacts facts = FactsOf(QGuiApplication::primaryScreen(), !lock);
    const auto values = app::PrepareStart(facts, {boxes, registry, files, settings});
    if (!values) return 0;

    desktop::QtApplication program;
    desktop::QtPrinter printer(files);
    desktop::QtDesktopDialogs dialogs(boxes, printer);
    desktop::QtClipboard clipboard;
    desktop::QtShell shell;
    desktop::RecentlyUsed documents(files, system::RecentDocumentsFile());
    desktop::XScreen screen;
    desktop::QtTray tray;
    desktop::QtHelpViewer help(shell);
    const commands::ProgramFolders folders{.application = facts.applicationFolder,
                                           .windows = values->WindowsFolder};
    system::RandomNumbers random(SeedOfClock());
    const document::JournalFolder journals(system::StateFolder());
    editing::WorkLog log(system::StateFolder());
    windows::FrmIcoEd window({program, dialogs, clipboard, boxes, help, files, registry, shell,
                              documents, screen, printer, tray, random, settings, log, journals,
                              folders, facts.systemLcid});
    const desktop::EndOfSession endOfSession(
        [&window](bool mayAsk) { return window.MayEndSession(mayAsk); });
    boxes.SetOwner(&window);
    window.Form_Load(app::PathOfCommandLine(CommandLine(argc, argv), files));
    window.show();
    QTimer::singleShot(kDrawn, &window, [&] { window.ShowInTray(); });
    QTimer settled;
    settled.callOnTimeout([&] {
        if (registry.CatchUp()) settled.stop();
    });
    settled.start(kSettled);
    const int result = QApplication::exec();
    registry.CatchUp();
    return result;
}
