#pragma once

#include <QTranslator>
#include <mutex>

namespace kestrel::desktop {

// Gives the desktop library's own texts (its dialogs, buttons, menus of text boxes) in the language
// in force, whatever the system's. Chinese ones come from the library's translations, read when one
// is asked for first; where those are not installed, texts stay English.
class LibraryTranslator : public QTranslator {
  public:
    bool isEmpty() const override { return false; }
    // Also called on the thread that reads folders for the file dialog.
    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int n) const override;

  private:
    mutable std::once_flag loaded_;
    mutable QTranslator chinese_;
};

}  // namespace kestrel::desktop
