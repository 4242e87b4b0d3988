#pragma once

#include <string>

#include "settings/Settings.h"

namespace kestrel::settings {

enum class WindowState { Normal, Minimised, Maximised };

// In twips, 15 a pixel.
struct WindowBounds {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    friend bool operator==(const WindowBounds&, const WindowBounds&) = default;
};

// A window whose place is remembered.
class PositionedWindow {
  public:
    virtual ~PositionedWindow() = default;
    // What it is called in the settings file.
    virtual std::string Name() const = 0;
    virtual WindowState State() const = 0;
    virtual WindowBounds Bounds() const = 0;
    // The screen's size, at (0, 0).
    virtual WindowBounds Screen() const = 0;
    virtual void Move(const WindowBounds& bounds) = 0;
    virtual void Maximise() = 0;
};

// Writes where the window is, for when it unloads. A minimised or maximised window keeps the
// bounds that were stored before. An empty file means the program's own, here and below.
void SaveWindowPosition(Settings& settings, const PositionedWindow& window,
                        const std::string& file = {});

// Puts the window where it was stored, kept on the screen, for when it loads. What is stored
// wrongly or not at all leaves the window as it is.
void RestoreWindowPosition(Settings& settings, PositionedWindow& window,
                           const std::string& file = {});

}  // namespace kestrel::settings
