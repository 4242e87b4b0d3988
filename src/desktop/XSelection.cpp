#include "desktop/XSelection.h"

#include <poll.h>

#include <algorithm>
#include <cstring>
#include <utility>

namespace kestrel::desktop {

namespace {

constexpr std::uint8_t kSentByClient = 0x80;
constexpr std::size_t kMostTargets = 1000;

}  // namespace

XSelection::XSelection(Wanted wanted)
    : wanted_(std::move(wanted)), connection_(xcb_connect(nullptr, nullptr)) {
    const xcb_setup_t* setup = xcb_get_setup(connection_.get());
    if (setup == nullptr || xcb_connection_has_error(connection_.get()) != 0) return;
    const xcb_screen_t* screen = xcb_setup_roots_iterator(setup).data;
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    window_ = xcb_generate_id(connection_.get());
    xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, window_, screen->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &events);
    clipboard_ = Atom("CLIPBOARD");
    property_ = Atom("KESTREL_CLIPBOARD");
}

std::optional<std::string> XSelection::FirstOffered(std::span<const char* const> formats) {
    const xcb_atom_t own = Atom("TARGETS");
    const auto targets = Convert(own, kMostTargets * sizeof(xcb_atom_t));
    if (!targets) return std::nullopt;
    // Some owners name the list by its own type; any other type is no list.
    const bool isList = targets->type == XCB_ATOM_ATOM || targets->type == own;
    if (targets->type != XCB_ATOM_NONE && !isList) return std::nullopt;
    if (targets->bytes.empty()) return std::string();
    std::vector<xcb_atom_t> offered(targets->bytes.size() / sizeof(xcb_atom_t));
    std::memcpy(offered.data(), targets->bytes.data(), offered.size() * sizeof(xcb_atom_t));
    for (const char* format : formats) {
        if (std::find(offered.begin(), offered.end(), Atom(format)) != offered.end()) return format;
    }
    return std::string();
}

std::optional<std::vector<std::uint8_t>> XSelection::Read(std::string_view format,
                                                          std::size_t limit) {
    auto content = Convert(Atom(format), limit);
    if (!content || content->type == XCB_ATOM_NONE) return std::nullopt;
    if (content->type == Atom("INCR")) return ReadParts(limit);
    return std::move(content->bytes);
}

std::optional<XSelection::Property> XSelection::Convert(xcb_atom_t target, std::size_t limit) {
    if (window_ == XCB_NONE || target == XCB_ATOM_NONE) return std::nullopt;
    xcb_convert_selection(connection_.get(), window_, clipboard_, target, property_,
                          XCB_CURRENT_TIME);
    while (const auto event = WaitFor(XCB_SELECTION_NOTIFY)) {
        const auto* answer = reinterpret_cast<const xcb_selection_notify_event_t*>(event.get());
        if (answer->selection != clipboard_ || answer->target != target) continue;
        Property content;
        if (answer->property == XCB_ATOM_NONE) return content;
        const auto type = TakeProperty(content.bytes, limit);
        if (!type) return std::nullopt;
        content.type = *type;
        return content;
    }
    return std::nullopt;
}

// The owner puts the next part into the property whenever the last one was taken out of it; an
// empty one is the end.
std::optional<std::vector<std::uint8_t>> XSelection::ReadParts(std::size_t limit) {
    std::vector<std::uint8_t> whole;
    // Memory that is not used costs nothing; what grows is twice there while it is moved.
    whole.reserve(limit);
    while (const auto event = WaitFor(XCB_PROPERTY_NOTIFY)) {
        const auto* change = reinterpret_cast<const xcb_property_notify_event_t*>(event.get());
        if (change->atom != property_ || change->state != XCB_PROPERTY_NEW_VALUE) continue;
        const std::size_t before = whole.size();
        const auto type = TakeProperty(whole, limit);
        if (!type) return std::nullopt;
        if (*type != XCB_ATOM_NONE && whole.size() == before) return whole;
    }
    return std::nullopt;
}

std::optional<xcb_atom_t> XSelection::TakeProperty(std::vector<std::uint8_t>& bytes,
                                                   std::size_t limit) {
    constexpr std::uint32_t kUnit = 4;  // bytes
    constexpr std::uint32_t kUnitsAtOnce = 1U << 18;
    // The last request takes it away.
    for (std::uint32_t units = 0;; units += kUnitsAtOnce) {
        const auto cookie = xcb_get_property(connection_.get(), 1, window_, property_,
                                             XCB_GET_PROPERTY_TYPE_ANY, units, kUnitsAtOnce);
        const Owned<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(connection_.get(), cookie, nullptr));
        if (!reply) return std::nullopt;
        const auto* part = static_cast<const std::uint8_t*>(xcb_get_property_value(reply.get()));
        const auto size = static_cast<std::size_t>(xcb_get_property_value_length(reply.get()));
        if (size + reply->bytes_after > limit - bytes.size()) return std::nullopt;
        if (bytes.empty()) bytes.reserve(size + reply->bytes_after);
        bytes.insert(bytes.end(), part, part + size);
        if (reply->bytes_after == 0) return reply->type;
        if (size != std::size_t{kUnit} * kUnitsAtOnce) return std::nullopt;
    }
}

XSelection::Owned<xcb_generic_event_t> XSelection::WaitFor(std::uint8_t kind) {
    constexpr int kLook = 20;  // milliseconds
    xcb_flush(connection_.get());
    while (xcb_connection_has_error(connection_.get()) == 0 && wanted_()) {
        if (auto event = Owned<xcb_generic_event_t>(xcb_poll_for_event(connection_.get()))) {
            if ((event->response_type & ~kSentByClient) == kind) return event;
            continue;
        }
        pollfd descriptor{xcb_get_file_descriptor(connection_.get()), POLLIN, 0};
        poll(&descriptor, 1, kLook);
    }
    return nullptr;
}

xcb_atom_t XSelection::Atom(std::string_view name) {
    const auto cookie =
        xcb_intern_atom(connection_.get(), 0, static_cast<std::uint16_t>(name.size()), name.data());
    const Owned<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection_.get(), cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

}  // namespace kestrel::desktop
