#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "commands/Commands.h"
#include "platform/system/Registry.h"
#include "services/HelpViewer.h"
#include "services/Shell.h"
#include "tests/support/Recorders.h"

namespace kestrel::test {

// A registry in memory; `refused` is a key that cannot be written. Keys begin with their root, as
// in "HKCU\\Software".
class MemoryRegistry : public system::Registry {
  public:
    std::optional<std::string> ReadValue(system::RegistryRoot root, std::string_view key,
                                         std::string_view name) override {
        const auto found = values.find(Path(root, key));
        if (found == values.end()) return std::nullopt;
        const auto value = found->second.find(name);
        return value == found->second.end() ? std::nullopt : std::optional(value->second);
    }
    bool KeyExists(system::RegistryRoot root, std::string_view key) override {
        return values.contains(Path(root, key));
    }
    Result<void> WriteValue(system::RegistryRoot root, std::string_view key, std::string_view name,
                            std::string_view value) override {
        const system::NamedValue change{std::string(name), std::string(value)};
        return ChangeValues(root, key, {&change, 1});
    }
    Result<void> ChangeValues(system::RegistryRoot root, std::string_view key,
                              std::span<const system::NamedValue> changes) override {
        if (Path(root, key) == refused) return Fail(13, "Permission denied");
        for (const auto& [name, text] : changes) {
            values[Path(root, key)].erase(name);
            if (text) values[Path(root, key)][name] = *text;
        }
        return {};
    }

    using Values = std::map<std::string, std::string, std::less<>>;
    std::string refused;
    std::map<std::string, Values> values;

  private:
    static std::string Path(system::RegistryRoot root, std::string_view key) {
        constexpr const char* kRoots[] = {"HKCR\\", "HKCU\\", "HKLM\\"};
        return kRoots[static_cast<int>(root)] + std::string(key);
    }
};

// Notes what it should open and start. Opens nothing, and starts what `installed` names.
class RecordingShell : public services::Shell {
  public:
    Result<void> RunProgram(const std::string& program,
                            const std::vector<std::string>& arguments) override {
        if (installed.find(program + ' ') == std::string::npos)
            return Fail(2, "No such file or directory");
        started = program;
        for (const std::string& argument : arguments)
            started += ' ' + argument;
        return {};
    }
    Result<void> Open(const std::string& target) override {
        opened.push_back(target);
        return Fail(2, "No such file or directory");
    }

    std::vector<std::string> opened;
    // Each with a blank behind it.
    std::string installed;
    std::string started;
};

// Shows the help file that `known` names.
class RecordingHelp : public services::HelpViewer {
  public:
    bool ShowHelp(const std::string& file, const std::string& title) override {
        shown = file;
        shownTitle = title;
        return known == file;
    }
    void ChangePage(const std::string& file, const std::string& title) override {
        ShowHelp(file, title);
    }
    void Close() override { shown.clear(); }

    std::string known;
    std::string shown;
    std::string shownTitle;
};

// A picture in which each pixel has its number as its colour.
inline gdi::Surface Numbered(int width, int height) {
    gdi::Surface picture(width, height);
    for (int i = 0; i < width * height; ++i)
        picture.SetPixel(i % width, i / width, static_cast<gdi::COLORREF>(i));
    return picture;
}

// A screen that shows what a test painted; nothing lies on it at first.
class PaintedScreen : public services::Screen {
  public:
    bool IsSeen() const override { return seen; }
    gdi::Size Size() const override { return {shown.Width(), shown.Height()}; }
    bool Copy(gdi::Point leftTop, gdi::Surface& into) override {
        for (int y = 0; y < into.Height(); ++y) {
            for (int x = 0; x < into.Width(); ++x) {
                if (!shown.Contains(leftTop.x + x, leftTop.y + y)) continue;
                into.SetPixel(x, y, shown.GetPixel(leftTop.x + x, leftTop.y + y));
            }
        }
        return seen;
    }
    gdi::Point Pointer() const override { return pointer; }
    void MovePointer(gdi::Point to) override { pointer = to; }
    Result<gdi::Surface> Picture() override {
        if (!seen) return Fail(services::kScreenRefused, "refused");
        if (shown.Width() == 0) return Fail(services::kNoScreenPictures, "none");
        return shown;
    }
    bool IsComposited() const override { return false; }
    std::unique_ptr<services::InputHold> Hold(services::WindowHandle /*window*/,
                                              gdi::Rect area) override {
        held = area;
        return nullptr;
    }

    bool seen = true;
    gdi::Surface shown{0, 0};
    gdi::Point pointer;
    // Where the pointer was kept last.
    gdi::Rect held;
};

// A tray that notes what it shows.
class RecordingTray : public services::Tray {
  public:
    void FindHost(std::function<void()> then) override {
        if (hasHost) then();
    }
    bool HasHost() override { return hasHost; }
    void Add(const services::TrayIcon& icon) override { shown = icon; }
    void Modify(const services::TrayIcon& icon) override {
        if (shown) shown = icon;
    }
    void Remove() override { shown.reset(); }
    void SetMenu(std::span<const services::TrayMenuItem> items) override {
        menu.assign(items.begin(), items.end());
    }

    bool hasHost = true;
    std::optional<services::TrayIcon> shown;
    std::vector<services::TrayMenuItem> menu;
};

// Notes the documents it is told of.
class RecordingDocuments : public services::RecentDocuments {
  public:
    void Add(const std::string& path) override { used.push_back(path); }

    std::vector<std::string> used;
};

// All that a main window is given.
struct FakeServices {
    commands::MainServices Given() {
        return {application,
                desktop,
                clipboard,
                boxes,
                help,
                files,
                registry,
                shell,
                documents,
                screen,
                printer,
                tray,
                random,
                settings,
                log,
                journals,
                {"/program", "/windows"},
                1033};
    }

    RecordingApplication application;
    ScriptedDialogs desktop;
    MemoryClipboard clipboard;
    ScriptedBoxes boxes;
    RecordingHelp help;
    MemoryFiles files;
    MemoryRegistry registry;
    RecordingShell shell;
    RecordingDocuments documents;
    PaintedScreen screen;
    RecordingPrinter printer;
    RecordingTray tray;
    // The seed whose numbers the C++ standard tells.
    system::RandomNumbers random{std::mt19937::default_seed};
    settings::Settings settings{files, "/settings.ini"};
    EditorRecorder log;
    document::JournalFolder journals{""};
};

}  // namespace kestrel::test
