#pragma once

#include "editing/EditorViews.h"

namespace kestrel::editing {

// Tells the log when a change is complete. Changes are made of smaller ones: the end of the
// outermost counts.
class EditSteps {
  public:
    // The first change is the making of the editor: it lasts until Built.
    EditSteps(EditingLog& log, const Editor& editor) : log_(log), editor_(editor) {}
    EditSteps(const EditSteps&) = delete;
    EditSteps& operator=(const EditSteps&) = delete;
    void Built() { End(); }

    // A change from here to the end of its life.
    class Step {
      public:
        explicit Step(EditSteps& steps) : steps_(steps) { ++steps_.open_; }
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;
        ~Step() { steps_.End(); }

      private:
        EditSteps& steps_;
    };

  private:
    void End() {
        if (--open_ == 0) log_.StepEnded(editor_);
    }

    EditingLog& log_;
    const Editor& editor_;
    int open_ = 1;
};

// Passes on what becomes of wells and palette, each time a change of its own.
class LoggedColors : public ColorsView {
  public:
    LoggedColors(ColorsView& view, EditSteps& steps) : view_(view), steps_(steps) {}

    void ShowWell(Button button, gdi::COLORREF color, bool transparent) override;
    void RepaintPalette() override;
    void ShowChkPal(bool ticked) override;

  private:
    ColorsView& view_;
    EditSteps& steps_;
};

}  // namespace kestrel::editing
