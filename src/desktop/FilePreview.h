#pragma once

#include <QImage>
#include <QWidget>
#include <string>

namespace kestrel::desktop {

// What Open would take of the file that is marked in a file dialog, in whole multiples of its
// pixels, with size and depth below, which are also its accessible
// description; of a program its first icon.
class FilePreview : public QWidget {
  public:
    explicit FilePreview(QWidget* parent);

    // Shows nothing for what holds no icon. Only parts of large files are read.
    void Show(const std::string& path);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void DrawPicture(QPainter& painter, QRect ground) const;

    QImage picture_;
};

}  // namespace kestrel::desktop
