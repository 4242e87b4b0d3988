#pragma once

#include <QPointer>

#include "commands/MagnifierWindow.h"
#include "windows/frmZoom.h"

namespace kestrel::windows {

// The one magnifier of the program, made when it is first asked for and gone when it is closed.
class ShownMagnifier : public commands::MagnifierWindow {
  public:
    explicit ShownMagnifier(const MagnifierServices& services) : services_(services) {}
    ShownMagnifier(const ShownMagnifier&) = delete;
    ShownMagnifier& operator=(const ShownMagnifier&) = delete;
    ~ShownMagnifier() override { Delete(); }

    void ShowMagnifier() override;
    void Rest(bool resting) override;
    // What is open changes to this language; what opens later has it anyway.
    void ShowCaptions(std::string_view code);
    void Close();

  private:
    void Delete();

    MagnifierServices services_;
    QPointer<frmZoom> window_;
};

}  // namespace kestrel::windows
