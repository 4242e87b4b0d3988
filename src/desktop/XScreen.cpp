#include "desktop/XScreen.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <span>
#include <string_view>
#include <cstring>
#include <utility>

#include "desktop/ScreenPortal.h"
#include "desktop/PixelLayout.h"
#include "desktop/SharedPixels.h"
#include "desktop/XConnection.h"
#include "desktop/XHold.h"

namespace kestrel::desktop {
namespace {

// Of an event's type; the highest bit tells that another program sent it.
constexpr std::uint8_t kEventBits = 0x7F;

const xcb_screen_t& ScreenOf(xcb_connection_t* connection) {
    return *xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
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

    const xcb_visualtype_t& visual_;
    bool lowestFirst_;
    std::span<const std::uint8_t> bytes_;
    std::size_t bytesOfPixel_ = 0;
    std::size_t pad_ = 0;
    std::size_t bytesOfRow_ = 0;
    // The pixels of almost all screens, which need no masks.
    bool isUsual_ = false;
  private:
    gdi::COLORREF Color(std::span<const std::uint8_t> bytes) const {
        std::uint32_t pixel = 0;
        for (std::size_t i = 0; i < bytesOfPixel_; ++i)
            pixel = pixel << 8 | bytes[lowestFirst_ ? bytesOfPixel_ - 1 - i : i];
        return Channel(pixel, visual_.red_mask) | Channel(pixel, visual_.green_mask) << 8 |
               Channel(pixel, visual_.blue_mask) << 16;
    // The first pixels of a row.
    void Read(int row, std::span<gdi::COLORREF> into) const {
        const auto bytes = bytes_.subspan(static_cast<std::size_t>(row) * bytesOfRow_);
        for (std::size_t x = 0; x < into.size(); ++x) {
            const auto pixel = bytes.subspan(x * bytesOfPixel_);
            into[x] = isUsual_ ? gdi::Rgb(pixel[2], pixel[1], pixel[0]) : Color(pixel);
    // Whether so many pixels are there in a format that this class knows.
    bool Hold(gdi::Size size) {
        if (bytesOfPixel_ == 0 || pad_ == 0) return false;
        const std::size_t row = static_cast<std::size_t>(size.width) * bytesOfPixel_;
        bytesOfRow_ = (row + pad_ - 1) / pad_ * pad_;
        return bytes_.size() >= bytesOfRow_ * static_cast<std::size_t>(size.height);
// Rows of pixels as the server sends them: its byte order, each row padded.
class SentRows {
  public:
    SentRows(const xcb_setup_t& setup, const xcb_visualtype_t& visual, xcb_get_image_reply_t& image)
        : visual_(visual),
          lowestFirst_(setup.image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST),
          bytes_(xcb_get_image_data(&image),
                 static_cast<std::size_t>(xcb_get_image_data_length(&image))) {
        const std::span formats(xcb_setup_pixmap_formats(&setup),
                                static_cast<std::size_t>(xcb_setup_pixmap_formats_length(&setup)));
        const auto format = std::ranges::find(formats, image.depth, &xcb_format_t::depth);
        if (format == formats.end()) return;
        bytesOfPixel_ = format->bits_per_pixel / 8U;
        pad_ = format->scanline_pad / 8U;
        isUsual_ = lowestFirst_ && bytesOfPixel_ == 4 && visual.red_mask == 0xFF0000 &&
                   visual.green_mask == 0xFF00 && visual.blue_mask == 0xFF;
// A colour's share of a pixel, widened from the bits of its mask to eight.
std::uint32_t Channel(std::uint32_t pixel, std::uint32_t mask) {
    if (mask == 0) return 0;
    const std::uint32_t most = mask >> std::countr_zero(mask);
    return ((pixel & mask) >> std::countr_zero(mask)) * 255 / most;
struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};
using OwnConnection = std::unique_ptr<xcb_connection_t, Disconnect>;

}  // namespace

// A connection of its own: that of the desktop library has a thread which wakes up at every answer.
class XScreen::Link {
  public:
    explicit Link(OwnConnection connection);

    gdi::Size Size();
    bool Copy(gdi::Point leftTop, gdi::Surface& into);
    gdi::Point Pointer() const;
    void MovePointer(gdi::Point to) const;

  private:
    gdi::Size AskSize() const;
    bool CopyPart(gdi::Point leftTop, gdi::Surface& into);

    OwnConnection own_;
    xcb_connection_t* connection_ = own_.get();
    xcb_window_t root_ = ScreenOf(connection_).root;
    PixelLayout layout_{*xcb_get_setup(connection_), ScreenOf(connection_)};
    SharedPixels shared_{connection_};
    gdi::Size size_;
};

XScreen::Link::Link(OwnConnection connection) : own_(std::move(connection)) {
    const std::uint32_t changesOfSize = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection_, root_, XCB_CW_EVENT_MASK, &changesOfSize);
    size_ = AskSize();
}

// Monitors come and go; the server tells of it.
gdi::Size XScreen::Link::Size() {
    while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(connection_)}) {
        if ((event->response_type & kEventBits) != XCB_CONFIGURE_NOTIFY) continue;
        xcb_configure_notify_event_t change;
        std::memcpy(&change, event.get(), sizeof(change));
        size_ = {change.width, change.height};
    }
    return size_;
}

gdi::Size XScreen::Link::AskSize() const {
    const XReply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, root_), nullptr));
    return geometry ? gdi::Size{geometry->width, geometry->height} : gdi::Size{};
}

bool XScreen::Link::Copy(gdi::Point leftTop, gdi::Surface& into) {
    if (CopyPart(leftTop, into)) return true;
    // A screen that has shrunk refuses what it lost before it has told so.
    const gdi::Size before = std::exchange(size_, AskSize());
    return before != size_ && CopyPart(leftTop, into);
}

bool XScreen::Link::CopyPart(gdi::Point leftTop, gdi::Surface& into) {
    const gdi::Size screen = Size();
    gdi::Rect part{std::max(leftTop.x, 0), std::max(leftTop.y, 0)};
    part.width = std::min(leftTop.x + into.Width(), screen.width) - part.left;
    part.height = std::min(leftTop.y + into.Height(), screen.height) - part.top;
    if (part.width <= 0 || part.height <= 0) return false;

    const std::size_t bytes = layout_.BytesOf({part.width, part.height});
    std::span<const std::uint8_t> pixels = shared_.Get(root_, part, bytes);
    XReply<xcb_get_image_reply_t> image;
    if (pixels.empty()) {
        image.reset(xcb_get_image_reply(
            connection_,
            xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, root_,
                          static_cast<int16_t>(part.left), static_cast<int16_t>(part.top),
                          static_cast<uint16_t>(part.width), static_cast<uint16_t>(part.height),
                          ~0U),
            nullptr));
        if (!image) return false;
        pixels = {xcb_get_image_data(image.get()),
                  static_cast<std::size_t>(xcb_get_image_data_length(image.get()))};
    }
    if (bytes == 0 || pixels.size() < bytes) return false;
    for (int y = 0; y < part.height; ++y) {
        rows.Read(y, into.Row(top - leftTop.y + y)
                         .subspan(static_cast<std::size_t>(left - leftTop.x),
                                  static_cast<std::size_t>(part.width)));
        const auto row = into.Row(part.top - leftTop.y + y)
                             .subspan(static_cast<std::size_t>(part.left - leftTop.x));
        layout_.ReadRow(pixels, y, row.first(static_cast<std::size_t>(part.width)));
    }
    return true;
}

gdi::Point XScreen::Link::Pointer() const {
    const XReply<xcb_query_pointer_reply_t> pointer(
        xcb_query_pointer_reply(connection_, xcb_query_pointer(connection_, root_), nullptr));
    return pointer ? gdi::Point{pointer->root_x, pointer->root_y} : gdi::Point{};
}

void XScreen::Link::MovePointer(gdi::Point to) const {
    xcb_warp_pointer(connection_, XCB_WINDOW_NONE, root_, 0, 0, 0, 0, static_cast<int16_t>(to.x),
                     static_cast<int16_t>(to.y));
    xcb_flush(connection_);
}

Result<gdi::Surface> XScreen::Picture() {
    if (!IsSeen()) return PictureFromPortal();
    const gdi::Size size = Size();
    gdi::Surface picture(size.width, size.height);
    if (!Copy({0, 0}, picture))
        return Fail(services::kScreenRefused, "The display sent no picture");
    return picture;
XScreen::XScreen() = default;
XScreen::~XScreen() = default;

std::unique_ptr<services::InputHold> XScreen::Hold(services::WindowHandle window, gdi::Rect area) {
    if (connection_ == nullptr) return nullptr;
    return std::make_unique<XHold>(connection_, static_cast<xcb_window_t>(window), area);
// A compositor owns a selection of its screen.
// Source: Extended Window Manager Hints 1.5, section "Compositing Managers".
bool XScreen::IsComposited() const {
    if (connection_ == nullptr) return false;
    constexpr std::string_view kName = "_NET_WM_CM_S0";
    const XReply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        connection_, xcb_intern_atom(connection_, 0, kName.size(), kName.data()), nullptr));
    if (!atom) return false;
    const XReply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        connection_, xcb_get_selection_owner(connection_, atom->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
bool XScreen::IsSeen() const {
    return XConnection() != nullptr;
}

XScreen::Link* XScreen::Linked() const {
    if (link_ != nullptr || !IsSeen()) return link_.get();
    OwnConnection connection(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection.get()) != 0) return nullptr;
    link_ = std::make_unique<Link>(std::move(connection));
    return link_.get();
}

gdi::Size XScreen::Size() const {
    Link* link = Linked();
    return link == nullptr ? gdi::Size{} : link->Size();
}

bool XScreen::Copy(gdi::Point leftTop, gdi::Surface& into) {
    Link* link = Linked();
    return link != nullptr && link->Copy(leftTop, into);
}

gdi::Point XScreen::Pointer() const {
    const Link* link = Linked();
    return link == nullptr ? gdi::Point{} : link->Pointer();
}

void XScreen::MovePointer(gdi::Point to) {
    if (const Link* link = Linked(); link != nullptr) link->MovePointer(to);
}

}  // namespace kestrel::desktop
