#include "windows/widgets/StatusBar.h"

#include "desktop/Text.h"

namespace kestrel::widgets {

namespace {

constexpr int kGap = 2;

}  // namespace

StatusBar::StatusBar(std::span<const int> widths, QWidget* parent) : QWidget(parent) {
    for (const int width : widths) {
        auto* label = new QLabel(this);
        label->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
        label->setTextFormat(Qt::PlainText);
        label->setIndent(kGap);
        panels_.push_back({label, width, {}});
    }
}

void StatusBar::SetText(int panel, std::string_view text) {
    Panel& changed = panels_.at(static_cast<std::size_t>(panel) - 1);
    if (changed.text == text) return;
    changed.text = text;
    changed.label->setText(desktop::ToText(text));
}

std::string StatusBar::Text(int panel) const {
    return panels_.at(static_cast<std::size_t>(panel) - 1).text;
}

void StatusBar::resizeEvent(QResizeEvent* /*event*/) {
    int fixed = 0;
    for (const Panel& panel : panels_)
        fixed += panel.width + kGap;
    int x = 0;
    for (const Panel& panel : panels_) {
        const int panelWidth = panel.width != 0 ? panel.width : width() - fixed;
        panel.label->setGeometry(x, 0, panelWidth, height());
        x += panelWidth + kGap;
    }
}

}  // namespace kestrel::widgets
