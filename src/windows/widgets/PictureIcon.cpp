#include "windows/widgets/PictureIcon.h"

#include <QIconEngine>
#include <QPainter>
#include <algorithm>

#include "desktop/Pictures.h"
#include "windows/widgets/DevicePixels.h"

namespace kestrel::widgets {

namespace {

// How much of a disabled picture is left.
constexpr int kDisabledAlpha = 0x70;

QImage Disabled(const QImage& picture) {
    QImage grey = picture;
    for (int y = 0; y < grey.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(grey.scanLine(y));
        std::transform(row, row + grey.width(), row, [](QRgb pixel) {
            const int light = qGray(pixel);
            return qRgba(light, light, light, qAlpha(pixel) == 0 ? 0 : kDisabledAlpha);
        });
    }
    return grey;
}

class PictureEngine : public QIconEngine {
  public:
    PictureEngine(const controls::ImageList& pictures, int number)
        : pictures_(&pictures), number_(number) {}

    QIconEngine* clone() const override { return new PictureEngine(*this); }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixels(size);
        pixels.fill(Qt::transparent);
        QPainter painter(&pixels);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixels;
    }

    void paint(QPainter* painter, const QRect& area, QIcon::Mode mode,
               QIcon::State /*state*/) override {
        QImage picture = desktop::ToImage(pictures_->Picture(number_));
        if (mode == QIcon::Disabled) picture = Disabled(picture);
        DrawSharp(*painter, area, picture);
    }

  private:
    const controls::ImageList* pictures_;
    int number_;
};

}  // namespace

QIcon PictureIcon(const controls::ImageList& pictures, int number) {
    if (number < 1 || number > pictures.Count()) return {};
    return QIcon(new PictureEngine(pictures, number));
}

}  // namespace kestrel::widgets
