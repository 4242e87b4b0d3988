#pragma once

#include <QTranslator>
#include <functional>
#include <string_view>

#include "desktop/Text.h"

namespace kestrel::desktop {

// Gives the desktop's own texts (buttons, file dialogs) in the language of the program. `lookUp`
// gets the English text and answers with the one to show, empty to leave it.
class TableTranslator : public QTranslator {
  public:
    using LookUp = std::function<std::string_view(std::string_view english)>;

    explicit TableTranslator(LookUp lookUp) : lookUp_(std::move(lookUp)) {}

    bool isEmpty() const override { return false; }
    QString translate(const char* /*context*/, const char* sourceText,
                      const char* /*disambiguation*/, int /*n*/) const override {
        return ToText(lookUp_(sourceText));
    }

  private:
    LookUp lookUp_;
};

}  // namespace kestrel::desktop
