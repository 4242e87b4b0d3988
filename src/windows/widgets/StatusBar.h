#pragma once

#include <QLabel>
#include <QWidget>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrel::widgets {

// A row of sunken text panels along the bottom of a window.
class StatusBar : public QWidget {
  public:
    // Panel widths in pixels, from the left; 0 takes what the others leave (one panel may).
    StatusBar(std::span<const int> widths, QWidget* parent);

    // Panels count from 1. A text that is too long is cut at its end.
    void SetText(int panel, std::string_view text);
    std::string Text(int panel) const;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    struct Panel {
        QLabel* label;
        int width;
        std::string text;
    };

    std::vector<Panel> panels_;
};

}  // namespace kestrel::widgets
