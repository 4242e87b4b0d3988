#include "desktop/TwoColorWindows.h"

#include <xcb/xcb.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include "desktop/XConnection.h"

namespace kestrel::desktop {

namespace {

// The pictures that the library draws on begin with five bits a colour.
constexpr int kDrawableDepth = 15;

QWidget* WidgetOf(const QObject* target) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget == target || widget->windowHandle() == target) return widget;
    }
    return nullptr;
}

// One bit a pixel, rows padded to 32 bits, in the bit order of the server.
QImage Drawn(QWidget& window, bool lowestBitFirst) {
    QImage picture(window.size(), QImage::Format_RGB32);
    window.render(&picture);
    return picture.convertToFormat(lowestBitFirst ? QImage::Format_MonoLSB : QImage::Format_Mono,
                                   Qt::ThresholdDither);
}

void Put(const QImage& bits, xcb_window_t window, xcb_connection_t* connection) {
    const xcb_setup_t* setup = xcb_get_setup(connection);
    const xcb_screen_t* screen = xcb_setup_roots_iterator(setup).data;
    const bool oneIsDark = qGray(bits.color(1)) < qGray(bits.color(0));
    const std::uint32_t inks[] = {oneIsDark ? screen->black_pixel : screen->white_pixel,
                                  oneIsDark ? screen->white_pixel : screen->black_pixel};
    const xcb_gcontext_t context = xcb_generate_id(connection);
    xcb_create_gc(connection, context, window, XCB_GC_FOREGROUND | XCB_GC_BACKGROUND, inks);
    xcb_put_image(connection, XCB_IMAGE_FORMAT_XY_BITMAP, window, context,
                  static_cast<std::uint16_t>(bits.width()),
                  static_cast<std::uint16_t>(bits.height()), 0, 0, 0, 1,
                  static_cast<std::uint32_t>(bits.sizeInBytes()), bits.constBits());
    xcb_free_gc(connection, context);
    xcb_flush(connection);
}

}  // namespace

bool TwoColorWindows::IsNeeded() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return XConnection() != nullptr && screen != nullptr && screen->depth() < kDrawableDepth;
}

bool TwoColorWindows::eventFilter(QObject* target, QEvent* event) {
    if (event->type() != QEvent::Expose && event->type() != QEvent::UpdateRequest) return false;
    QWidget* window = WidgetOf(target);
    xcb_connection_t* connection = XConnection();
    if (window == nullptr || connection == nullptr || !window->isVisible()) return true;
    const bool lowestFirst =
        xcb_get_setup(connection)->bitmap_format_bit_order == XCB_IMAGE_ORDER_LSB_FIRST;
    Put(Drawn(*window, lowestFirst), static_cast<xcb_window_t>(window->winId()), connection);
    return true;
}

}  // namespace kestrel::desktop
