#include "settings/WindowPositions.h"

#include <algorithm>
#include <vector>

#include "platform/system/Characters.h"
#include "platform/system/LeadingNumber.h"
#include "platform/system/LetterCase.h"

namespace kestrel::settings {

namespace {

constexpr std::string_view kSection = "Positions";
constexpr std::size_t kFields = 5;
// Smaller stored sizes are no window's.
constexpr int kLeastSize = 150;  // twips

// The fields between the commas; none for an empty text.
std::vector<std::string> FieldsOf(std::string_view stored) {
    std::vector<std::string> fields;
    if (stored.empty()) return fields;
    for (std::size_t comma = 0; comma != std::string_view::npos;) {
        comma = stored.find(',');
        fields.emplace_back(system::Trimmed(stored.substr(0, comma)));
        stored.remove_prefix(comma == std::string_view::npos ? 0 : comma + 1);
    }
    return fields;
}

std::string Joined(const std::vector<std::string>& fields) {
    std::string text = fields.front();
    for (std::size_t i = 1; i < fields.size(); ++i)
        text += "," + fields[i];
    return text;
}

// The number a field begins with, 0 when there is none.
int NumberOf(const std::string& field) {
    return system::LeadingNumber(field).value_or(0);
}

// One axis of a stored window: where it starts and how long it is, in twips.
struct Span {
    int start;
    int length;
};

Span OnScreen(Span stored, Span current, int screen) {
    Span placed = stored;
    placed.length = stored.length >= kLeastSize ? std::min(stored.length, screen) : current.length;
    if (stored.start < 0) placed.start = current.start;
    if (placed.start > screen - placed.length) placed.start = screen - placed.length;
    return placed;
}

}  // namespace

void SaveWindowPosition(Settings& settings, const PositionedWindow& window,
                        const std::string& file) {
    const WindowState state = window.State();
    const WindowBounds now = window.Bounds();
    std::vector<std::string> fields{std::to_string(now.left), std::to_string(now.top),
                                    std::to_string(now.width), std::to_string(now.height)};
    if (state != WindowState::Normal) {
        fields = FieldsOf(settings.ReadSetting(kSection, window.Name(), "", file));
        if (fields.empty()) fields.assign(kFields - 1, "-1");
    }
    fields.resize(kFields);
    fields.back() = state == WindowState::Maximised ? "True" : "False";
    settings.WriteSetting(kSection, window.Name(), Joined(fields), file);
}

void RestoreWindowPosition(Settings& settings, PositionedWindow& window, const std::string& file) {
    const WindowBounds now = window.Bounds();
    const WindowBounds screen = window.Screen();
    WindowBounds stored = now;
    bool maximised = window.State() == WindowState::Maximised;
    const auto fields = FieldsOf(settings.ReadSetting(kSection, window.Name(), "", file));
    if (fields.size() >= kFields) {
        stored = {NumberOf(fields[0]), NumberOf(fields[1]), NumberOf(fields[2]),
                  NumberOf(fields[3])};
        maximised = system::SameName(fields[4], "true");
    }
    const Span across = OnScreen({stored.left, stored.width}, {now.left, now.width}, screen.width);
    const Span down = OnScreen({stored.top, stored.height}, {now.top, now.height}, screen.height);
    window.Move({across.start, down.start, across.length, down.length});
    if (maximised) window.Maximise();
}

}  // namespace kestrel::settings
