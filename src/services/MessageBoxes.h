#pragma once

#include <string>

namespace kestrel::services {

enum class BoxIcon { Question, Information, Exclamation, Critical };
enum class BoxButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Answer { Ok, Cancel, Yes, No };

// The system's message boxes: modal, plain text with CR LF line breaks. Closing a box answers
// Cancel or, where there is none, No or Ok. Where the program ends meanwhile all but those with Ok
// alone answer Cancel.
class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    // `preset` is the button that Return alone presses.
    virtual Answer Ask(BoxIcon icon, BoxButtons buttons, Answer preset, const std::string& text,
                       const std::string& title) = 0;
    // Return presses the first button, but No of YesNo.
    Answer Show(BoxIcon icon, BoxButtons buttons, const std::string& text,
                const std::string& title) {
        return Ask(icon, buttons, UsualPreset(buttons), text, title);
    }

  private:
    static Answer UsualPreset(BoxButtons buttons) {
        if (buttons == BoxButtons::YesNo) return Answer::No;
        return buttons == BoxButtons::YesNoCancel ? Answer::Yes : Answer::Ok;
    }
};

}  // namespace kestrel::services
