#include "desktop/XScreen.h"

#include <QCoreApplication>
#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <span>
#include <utility>

#include "desktop/XConnection.h"

namespace kestrel::desktop {
namespace {

// Of an event's type; the highest bit tells that another program sent it.
constexpr std::uint8_t kEventBits = 0x7F;

const xcb_screen_t* ScreenOf(xcb_connection_t* connection) {
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
}

const xcb_visualtype_t* VisualOf(const xcb_screen_t& screen) {
    for (auto depth = xcb_screen_allowed_depths_iterator(&screen); depth.rem != 0;
         xcb_depth_next(&depth)) {
        for (auto visual = xcb_depth_visuals_iterator(depth.data); visual.rem != 0;
             xcb_visualtype_next(&visual)) {
            if (visual.data->visual_id == screen.root_visual) return visual.data;
        }
    }
    return nullptr;
}

// A colour's share of a pixel, widened from the bits of its mask to eight.
std::uint32_t Channel(std::uint32_t pixel, std::uint32_t mask) {
    if (mask == 0) return 0;
    const std::uint32_t most = mask >> std::countr_zero(mask);
    return ((pixel & mask) >> std::countr_zero(mask)) * 255 / most;
}

// Rows of pixels as the server sends them: its byte order, each row padded.
class SentRows {
  public:
    SentRows(const xcb_setup_t& setup, const xcb_visualtype_t& visual, xcb_get_image_reply_t& image)
        : setup_(setup),
          visual_(visual),
          bytes_(xcb_get_image_data(&image),
                 static_cast<std::size_t>(xcb_get_image_data_length(&image))) {
        const std::span formats(xcb_setup_pixmap_formats(&setup),
                                static_cast<std::size_t>(xcb_setup_pixmap_formats_length(&setup)));
        const auto format = std::ranges::find(formats, image.depth, &xcb_format_t::depth);
        if (format == formats.end()) return;
        bytesOfPixel_ = format->bits_per_pixel / 8U;
        pad_ = format->scanline_pad / 8U;
    }

    // Whether so many pixels are there in a format that this class knows.
    bool Hold(gdi::Size size) {
        if (bytesOfPixel_ == 0 || pad_ == 0) return false;
        const std::size_t row = static_cast<std::size_t>(size.width) * bytesOfPixel_;
        bytesOfRow_ = (row + pad_ - 1) / pad_ * pad_;
        return bytes_.size() >= bytesOfRow_ * static_cast<std::size_t>(size.height);
    }

    // The first pixels of a row.
    void Read(int y, std::span<gdi::COLORREF> into) const {
        if (IsUsual()) return ReadUsual(y, into);
        for (std::size_t x = 0; x < into.size(); ++x)
            into[x] = At(x, y);
    }

  private:
    // Whether pixels are numbers of this processor that hold 0x00RRGGBB, as on nearly every server.
    bool IsUsual() const {
        const bool here = (std::endian::native == std::endian::little) ==
                          (setup_.image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST);
        return here && bytesOfPixel_ == sizeof(gdi::COLORREF) && visual_.red_mask == 0xFF0000 &&
               visual_.green_mask == 0xFF00 && visual_.blue_mask == 0xFF;
    }

    std::size_t RowAt(int y) const { return static_cast<std::size_t>(y) * bytesOfRow_; }

    void ReadUsual(int y, std::span<gdi::COLORREF> into) const {
        std::memcpy(into.data(), bytes_.subspan(RowAt(y), into.size_bytes()).data(),
                    into.size_bytes());
        for (gdi::COLORREF& pixel : into)
            pixel = (pixel & 0xFF00) | (pixel >> 16 & 0xFF) | (pixel & 0xFF) << 16;
    }

    gdi::COLORREF At(std::size_t x, int y) const {
        const std::size_t first = RowAt(y) + x * bytesOfPixel_;
        const bool lowestFirst = setup_.image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST;
        std::uint32_t pixel = 0;
        for (std::size_t i = 0; i < bytesOfPixel_; ++i) {
            pixel = pixel << 8 | bytes_[first + (lowestFirst ? bytesOfPixel_ - 1 - i : i)];
        }
        return Channel(pixel, visual_.red_mask) | Channel(pixel, visual_.green_mask) << 8 |
               Channel(pixel, visual_.blue_mask) << 16;
    }

    const xcb_setup_t& setup_;
    const xcb_visualtype_t& visual_;
    std::span<const std::uint8_t> bytes_;
    std::size_t bytesOfPixel_ = 0;
    std::size_t pad_ = 0;
    std::size_t bytesOfRow_ = 0;
};

}  // namespace

XScreen::XScreen() : connection_(XConnection()) {
    if (connection_ == nullptr) return;
    root_ = ScreenOf(connection_)->root;
    // The desktop library asks for the events of the root window.
    qApp->installNativeEventFilter(this);
}

// Monitors come and go; the server tells of it.
bool XScreen::nativeEventFilter(const QByteArray& /*type*/, void* message, qintptr* /*result*/) {
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & kEventBits) == XCB_CONFIGURE_NOTIFY) {
        const auto* change = static_cast<const xcb_configure_notify_event_t*>(message);
        if (change->window == root_) size_ = {change->width, change->height};
    }
    return false;
}

gdi::Size XScreen::Size() const {
    if (connection_ != nullptr && size_ == gdi::Size{}) size_ = AskSize();
    return size_;
}

gdi::Size XScreen::AskSize() const {
    const XReply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, root_), nullptr));
    return geometry ? gdi::Size{geometry->width, geometry->height} : gdi::Size{};
}

bool XScreen::Copy(gdi::Point leftTop, gdi::Surface& into) {
    if (CopyPart(leftTop, into)) return true;
    // A screen that has shrunk refuses what it lost before it has told so.
    const gdi::Size before = std::exchange(size_, {});
    return before != Size() && CopyPart(leftTop, into);
}

bool XScreen::CopyPart(gdi::Point leftTop, gdi::Surface& into) {
    const gdi::Size screen = Size();
    const int left = std::max(leftTop.x, 0);
    const int top = std::max(leftTop.y, 0);
    const gdi::Size part{std::min(leftTop.x + into.Width(), screen.width) - left,
                         std::min(leftTop.y + into.Height(), screen.height) - top};
    if (part.width <= 0 || part.height <= 0) return false;
    const XReply<xcb_get_image_reply_t> image(xcb_get_image_reply(
        connection_,
        xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, root_, static_cast<int16_t>(left),
                      static_cast<int16_t>(top), static_cast<uint16_t>(part.width),
                      static_cast<uint16_t>(part.height), ~0U),
        nullptr));
    const xcb_visualtype_t* visual = VisualOf(*ScreenOf(connection_));
    if (!image || visual == nullptr) return false;
    SentRows rows(*xcb_get_setup(connection_), *visual, *image);
    if (!rows.Hold(part)) return false;
    for (int y = 0; y < part.height; ++y) {
        rows.Read(y, into.Row(top - leftTop.y + y)
                         .subspan(static_cast<std::size_t>(left - leftTop.x),
                                  static_cast<std::size_t>(part.width)));
    }
    return true;
}

gdi::Point XScreen::Pointer() const {
    if (connection_ == nullptr) return {};
    const XReply<xcb_query_pointer_reply_t> pointer(
        xcb_query_pointer_reply(connection_, xcb_query_pointer(connection_, root_), nullptr));
    return pointer ? gdi::Point{pointer->root_x, pointer->root_y} : gdi::Point{};
}

void XScreen::MovePointer(gdi::Point to) {
    if (connection_ == nullptr) return;
    xcb_warp_pointer(connection_, XCB_WINDOW_NONE, root_, 0, 0, 0, 0, static_cast<int16_t>(to.x),
                     static_cast<int16_t>(to.y));
    xcb_flush(connection_);
}

}  // namespace kestrel::desktop
