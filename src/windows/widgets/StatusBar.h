#pragma once

#include <QLabel>
#include <QWidget>
#include <string>
#include <string_view>
#include <vector>

#include "editing/EditorViews.h"

namespace kestrel::widgets {

// A row of sunken text panels along the bottom of a window.
class StatusBar : public QWidget, public editing::StatusView {
  public:
    explicit StatusBar(QWidget* parent);

    // A text that is too long is cut at its end.
    void SetStatusPanel(editing::StatusPanel panel, std::string_view text) override;
    std::string Text(editing::StatusPanel panel) const;
    // The texts are as large as on the desktop where they have room.
    void FitTexts();
    // Empties the panels that follow the pointer.
    void Clear();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    struct Panel {
        QLabel* label;
        int width;
        // Of its texts, those of the first panel aside, which may be cut.
        QString widest;
        std::string text;
    };

    static std::size_t IndexOf(editing::StatusPanel panel) {
        return static_cast<std::size_t>(panel) - 1;
    }

    std::vector<Panel> panels_;
};

}  // namespace kestrel::widgets
