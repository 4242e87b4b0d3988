#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace kestrel::desktop {

// The program's own connection to its X display; null where it runs on none.
xcb_connection_t* XConnection();

// An answer of the X server.
struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename Reply>
using XReply = std::unique_ptr<Reply, FreeReply>;

}  // namespace kestrel::desktop
