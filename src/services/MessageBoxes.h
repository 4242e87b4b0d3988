#pragma once

#include <string>

namespace kestrel::services {

enum class BoxIcon { Question, Information, Exclamation, Critical };
// Return alone presses the first button, but No of YesNo.
enum class BoxButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Answer { Ok, Cancel, Yes, No };

// The system's message boxes: modal, plain text with CR LF line breaks. Closing a box answers
// Cancel or, where there is none, No or Ok.
class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    virtual Answer Show(BoxIcon icon, BoxButtons buttons, const std::string& text,
                        const std::string& title) = 0;
};

}  // namespace kestrel::services
