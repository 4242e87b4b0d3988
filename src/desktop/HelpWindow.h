#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QTextBrowser>
#include <functional>

namespace kestrel::desktop {

// The help pages with a search field above them. Ctrl+F goes to it; what is typed is found at once,
// Return and F3 find the next place, with Shift the one before; after the last comes the first.
class HelpWindow : public QTextBrowser {
  public:
    HelpWindow();

    // Its own texts in the language in force.
    void ShowTexts();
    QLineEdit& SearchField() { return field_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void AddKey(const QKeySequence& key, std::function<void()> then);
    // From the place that is marked: a place of more letters may begin where it does.
    void FindFromHere();
    void Find(QTextDocument::FindFlags direction);

    QWidget bar_{this};
    QLineEdit field_;
    QLabel notFound_;
};

}  // namespace kestrel::desktop
