#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "commands/MainWindow.h"
#include "platform/system/FileSystem.h"
#include "platform/system/LetterCase.h"
#include "services/Clipboard.h"
#include "services/MessageBoxes.h"
#include "services/Printer.h"
#include "tests/support/EditorRecorder.h"
#include "tests/support/ScriptedDialogs.h"

namespace kestrel::test {

// The window that dialogs belong to.
class OwnerOfDialogs : public services::OwnerWindow {
  public:
    static constexpr services::WindowHandle kHandle = 77;
    services::WindowHandle hWnd() const override { return kHandle; }
};

// A user who answers the program's dialogs as a test says; without an answer they are cancelled.
class AnsweredDialogs : public commands::Dialogs {
  public:
    bool AdjustColors(imaging::ColorAdjustment& colors, const gdi::Surface& preview) override {
        shown = preview;
        return adjust && adjust(colors);
    }
    std::optional<int> AskGamma() override { return gamma; }
    std::optional<gdi::Surface> AskGradient() override { return gradient; }
    std::optional<imaging::PasteFit> AskFit(gdi::Size /*picture*/) override { return fit; }
    bool PickIcon(tools::IconExtraction& /*extraction*/) override { return false; }
    void ShowStates(const gdi::IconPlanes& icon) override { states = icon; }
    void ShowAbout(tools::SystemInformation& /*information*/) override {}
    std::optional<gdi::Surface> PickSquare(gdi::Surface /*screen*/) override {
        return std::nullopt;
    }

    gdi::Surface shown{0, 0};
    std::function<bool(imaging::ColorAdjustment& colors)> adjust;
    std::optional<int> gamma;
    std::optional<gdi::Surface> gradient;
    std::optional<imaging::PasteFit> fit;
    std::optional<gdi::IconPlanes> states;
};

// Message boxes that a test answers beforehand; unexpected ones are answered Cancel.
class ScriptedBoxes : public services::MessageBoxes {
  public:
    struct Shown {
        services::BoxIcon icon;
        services::BoxButtons buttons;
        std::string text;
        std::string title;
        services::Answer preset{};
    };

    services::Answer Ask(services::BoxIcon icon, services::BoxButtons buttons,
                         services::Answer preset, const std::string& text,
                         const std::string& title) override {
        shown.push_back({icon, buttons, text, title, preset});
        if (whileShown) whileShown();
        if (answers.empty()) return services::Answer::Cancel;
        const services::Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::deque<services::Answer> answers;
    // What happens while a box waits.
    std::function<void()> whileShown;
    std::vector<Shown> shown;
};

// A clipboard of this program alone; holding nothing it fails.
class MemoryClipboard : public services::Clipboard {
  public:
    bool HasImage() const override { return image.has_value(); }
    Result<gdi::SampledPicture> GetImage() override {
        if (!image) return Fail(kInvalidPicture, "Invalid picture");
        return gdi::SampledPicture(*image);
    }
    void SetImage(const gdi::Surface& pixels) override { Offer(pixels); }
    // As another program does.
    void Offer(std::optional<gdi::Surface> pixels) {
        image = std::move(pixels);
        if (onChanged) onChanged();
    }

    std::optional<gdi::Surface> image;
};

// A printer that notes what it prints: rectangles as "left,top widthxheight color, " in hexadecimal
// colours, and titles.
class RecordingPrinter : public services::Printer {
  public:
    bool IsInstalled() const override { return installed; }
    void SetOrientation(services::Orientation /*orientation*/) override {}
    gdi::Size PrintableArea() const override { return page; }
    void FillRectangle(gdi::Rect area, gdi::COLORREF color) override {
        std::ostringstream text;
        text << area.left << ',' << area.top << ' ' << area.width << 'x' << area.height << ' '
             << std::hex << color << ", ";
        printed += text.str();
    }
    Result<void> EndDocument(const std::string& title) override {
        printed += title + ' ';
        return {};
    }

    bool installed = true;
    gdi::Size page{320, 400};
    std::string printed;
};

// A disk in memory that tells files by their size; with `writeError` set every write fails with it.
class MemoryFiles : public system::FileSystem {
  public:
    Result<system::LoadedFile> LoadFile(const std::string& path, std::size_t /*limit*/) override {
        const auto found = std::ranges::find_if(
            contents, [&](const auto& file) { return system::SameName(file.first, path); });
        if (found == contents.end()) return Fail(2, "No such file or directory");
        return system::LoadedFile{found->first, *Identify(found->first), found->second};
    }
    Result<std::unique_ptr<system::ByteSource>> OpenSource(const std::string& path) override {
        auto content = ReadFile(path, SIZE_MAX);
        if (!content) return tl::unexpected(content.error());
        return std::make_unique<system::MemoryBytes>(*std::move(content));
    }
    Result<system::FileIdentity> ReplaceFile(const std::string& path,
                                             std::span<const std::uint8_t> bytes) override {
        if (writeError.number != 0) return Fail(writeError.number, writeError.description);
        contents[path].assign(bytes.begin(), bytes.end());
        return *Identify(path);
    }
    std::optional<system::FileIdentity> Identify(const std::string& path) override {
        if (!FileExists(path)) return std::nullopt;
        return system::FileIdentity{.size = contents.at(path).size()};
    }
    std::optional<std::string> Find(const std::string& path) override {
        return FileExists(path) ? std::optional(path) : std::nullopt;
    }
    bool FileExists(const std::string& path) override { return contents.contains(path); }
    Result<void> RemoveFile(const std::string& path) override {
        contents.erase(path);
        return {};
    }
    // For a real disk alone.
    Result<void> RenameFile(const std::string& /*from*/, const std::string& /*to*/) override {
        return {};
    }
    bool MakeFolder(const std::string& /*folder*/) override { return true; }

    std::map<std::string, std::vector<std::uint8_t>> contents;
    Error writeError;
};

}  // namespace kestrel::test
