#pragma once

#include <QLabel>
#include <QWidget>
#include <map>

#include "editing/EditorViews.h"
#include "platform/controls/ImageList.h"
#include "windows/NamedControls.h"
#include "windows/widgets/SurfaceWidget.h"

namespace kestrel::windows {

// The icon in actual size, beside it its format, and below it the readouts of the pointer.
class PreviewPane : public QWidget, public editing::PreviewView {
  public:
    // Writes its hint to `status`. `pictures` are those of the colour wells and outlive the pane.
    PreviewPane(editing::StatusView& status, const controls::ImageList& pictures, QWidget* parent);

    void Show(const gdi::Surface& preview) { picIcon_.Show(preview); }
    void AddTo(NamedControls& controls);

    // The texts are as large as on the desktop where they have room.
    void FitTexts();

    QLabel& Label1() { return label1_; }

    void RepaintPreview(gdi::Rect area) override { picIcon_.Repaint(area); }
    void PrintReadout(editing::StatusPanel panel, std::string_view text) override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const controls::ImageList& pictures_;
    QFont readoutFont_;
    widgets::SurfaceWidget picIcon_{this};
    QLabel label1_{this};
    std::map<editing::StatusPanel, QString> readouts_;
};

}  // namespace kestrel::windows
