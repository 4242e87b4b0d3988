#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrel::desktop {

// Reads the clipboard of an X display on a connection of its own. The desktop library would wait
// for its owner as long as that likes and take as much as it sends; here both have a limit. Not for
// a clipboard that the caller's own thread would have to answer for.
// Protocol: Inter-Client Communication Conventions Manual 2.0, section 2 (selections, INCR).
class XSelection {
  public:
    // Every wait for the owner ends soon after this says no.
    using Wanted = std::function<bool()>;
    explicit XSelection(Wanted wanted);

    // The first of these formats that the owner offers; empty when it offers none of them, nothing
    // when it gives no answer that makes sense.
    std::optional<std::string> FirstOffered(std::span<const char* const> formats);
    // The clipboard in one of its formats; nothing when the owner refuses, is late or sends more
    // than `limit` bytes.
    std::optional<std::vector<std::uint8_t>> Read(std::string_view format, std::size_t limit);

  private:
    struct Free {
        void operator()(void* reply) const { std::free(reply); }
    };
    template <typename Reply>
    using Owned = std::unique_ptr<Reply, Free>;
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    // Without a type there is none.
    struct Property {
        xcb_atom_t type = XCB_ATOM_NONE;
        std::vector<std::uint8_t> bytes;
    };

    xcb_atom_t Atom(std::string_view name);
    std::optional<Property> Convert(xcb_atom_t target, std::size_t limit);
    std::optional<std::vector<std::uint8_t>> ReadParts(std::size_t limit);
    // Takes the property out, its bytes behind those that are there already, and returns its type.
    std::optional<xcb_atom_t> TakeProperty(std::vector<std::uint8_t>& bytes, std::size_t limit);
    // The next event of this kind; null when it is not wanted any more.
    Owned<xcb_generic_event_t> WaitFor(std::uint8_t kind);

    Wanted wanted_;
    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    xcb_window_t window_ = XCB_NONE;
    xcb_atom_t clipboard_ = XCB_ATOM_NONE;
    xcb_atom_t property_ = XCB_ATOM_NONE;
};

}  // namespace kestrel::desktop
