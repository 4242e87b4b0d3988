#pragma once

#include <QWidget>

#include "editing/Editor.h"
#include "windows/NamedControls.h"
#include "windows/widgets/CellSurface.h"

namespace kestrel::windows {

// The tool palette in its sunken edge.
class ToolsPane : public QWidget, public editing::ToolsView {
  public:
    explicit ToolsPane(QWidget* parent);

    // Shows the editor's tools, and hands them mouse and keys from now on.
    void Show(editing::Editor& editor);

    void AddTo(NamedControls& controls) { controls.AddName(picTools_); }

    widgets::CellSurface& PicTools() { return picTools_; }

    void RepaintTools() override;
    void SetToolTipOfTools(std::string_view text) override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    widgets::CellSurface picTools_;
};

}  // namespace kestrel::windows
