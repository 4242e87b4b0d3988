#pragma once

#include <QWidget>

#include "editing/Editor.h"
#include "windows/widgets/SurfaceWidget.h"

namespace kestrel::windows {

// The tool palette in its sunken edge.
class ToolsPane : public QWidget, public editing::ToolsView {
  public:
    explicit ToolsPane(QWidget* parent);

    // Shows the editor's tools, and hands them the mouse from now on.
    void Show(editing::Editor& editor);

    widgets::SurfaceWidget& PicTools() { return picTools_; }

    void RepaintTools() override { picTools_.update(); }
    void SetToolTipOfTools(std::string_view text) override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    widgets::SurfaceWidget picTools_{this};
};

}  // namespace kestrel::windows
