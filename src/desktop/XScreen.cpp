#include "desktop/XScreen.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cstring>
#include <string_view>
#include <utility>

#include "desktop/PixelLayout.h"
#include "desktop/ScreenPortal.h"
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

// Xwayland shows X programs on a Wayland desktop. Its own screen stays black; its monitors bear its
// name.
bool IsGuest() {
    const QList<QScreen*> monitors = QGuiApplication::screens();
    return std::ranges::any_of(monitors, [](const QScreen* monitor) {
        return monitor->name().startsWith(QLatin1String("XWAYLAND"));
    });
}

}  // namespace

// A connection of its own: that of the desktop library has a thread which wakes up at every answer.
class XScreen::Link {
  public:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    using OwnConnection = std::unique_ptr<xcb_connection_t, Disconnect>;

    explicit Link(OwnConnection connection);

    gdi::Size Size();
    bool Copy(gdi::Point leftTop, gdi::Surface& into);
    gdi::Point Pointer() const;
    void MovePointer(gdi::Point to) const;
    // Whether somebody owns the selection of this name.
    bool HasOwner(std::string_view selection) const;

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

bool XScreen::Link::HasOwner(std::string_view selection) const {
    const XReply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        connection_,
        xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(selection.size()),
                        selection.data()),
        nullptr));
    if (!atom) return false;
    const XReply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        connection_, xcb_get_selection_owner(connection_, atom->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

XScreen::XScreen() = default;
XScreen::~XScreen() = default;

bool XScreen::IsSeen() const {
    return XConnection() != nullptr && !IsGuest();
}

XScreen::Link* XScreen::Linked() const {
    if (link_ != nullptr || !IsSeen()) return link_.get();
    Link::OwnConnection connection(xcb_connect(nullptr, nullptr));
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

Result<gdi::Surface> XScreen::Picture() {
    if (!IsSeen()) return PictureFromPortal(QDBusConnection::sessionBus());
    const gdi::Size size = Size();
    gdi::Surface picture(size.width, size.height);
    if (!Copy({0, 0}, picture))
        return Fail(services::kScreenRefused, "The display sent no picture");
    return picture;
}

// A compositor owns a selection of its screen.
// Source: Extended Window Manager Hints 1.5, section "Compositing Managers".
bool XScreen::IsComposited() const {
    const Link* link = Linked();
    return link != nullptr && link->HasOwner("_NET_WM_CM_S0");
}

// The window's own connection gets what the hold brings.
std::unique_ptr<services::InputHold> XScreen::Hold(services::WindowHandle window, gdi::Rect area) {
    if (!IsSeen()) return nullptr;
    return std::make_unique<XHold>(XConnection(), static_cast<xcb_window_t>(window), area);
}

}  // namespace kestrel::desktop
