#include "desktop/SharedPixels.h"

#include <sys/shm.h>
#include <sys/stat.h>

#include "desktop/XConnection.h"

namespace kestrel::desktop {

SharedPixels::SharedPixels(xcb_connection_t* connection) : connection_(connection) {
    const auto* extension = xcb_get_extension_data(connection, &xcb_shm_id);
    if (extension == nullptr || extension->present == 0) return;
    const int id = shmget(IPC_PRIVATE, kSize, IPC_CREAT | S_IRUSR | S_IWUSR);
    if (id < 0) return;
    if (void* memory = shmat(id, nullptr, 0); reinterpret_cast<std::intptr_t>(memory) != -1) {
        memory_ = static_cast<std::uint8_t*>(memory);
        segment_ = xcb_generate_id(connection);
        const XReply<xcb_generic_error_t> refused(xcb_request_check(
            connection,
            xcb_shm_attach_checked(connection, segment_, static_cast<std::uint32_t>(id), 0)));
        if (refused) segment_ = XCB_NONE;
    }
    // It goes with the last process that has it.
    shmctl(id, IPC_RMID, nullptr);
}

SharedPixels::~SharedPixels() {
    if (memory_ != nullptr) shmdt(memory_);
}

std::span<const std::uint8_t> SharedPixels::Get(xcb_drawable_t from, const gdi::Rect& part,
                                                std::size_t bytes) {
    if (segment_ == XCB_NONE || bytes > kSize) return {};
    const XReply<xcb_shm_get_image_reply_t> image(xcb_shm_get_image_reply(
        connection_,
        xcb_shm_get_image(
            connection_, from, static_cast<std::int16_t>(part.left),
            static_cast<std::int16_t>(part.top), static_cast<std::uint16_t>(part.width),
            static_cast<std::uint16_t>(part.height), ~0U, XCB_IMAGE_FORMAT_Z_PIXMAP, segment_, 0),
        nullptr));
    if (!image) return {};
    return {memory_, bytes};
}

}  // namespace kestrel::desktop
