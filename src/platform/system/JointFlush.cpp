#include "platform/system/JointFlush.h"

#include <fcntl.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <utility>

#include "platform/system/SystemError.h"

namespace kestrel::system {

void JointFlush::Add(const Replacement& replacement) {
    const auto [place, isNew] = systems_.try_emplace(replacement.Device());
    if (!isNew) return;
    const std::string folder = std::filesystem::path(replacement.Target()).parent_path().string();
    place->second.folder = FileHandle(
        calls_.Open(folder.empty() ? "." : folder, O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0));
}

void JointFlush::Flush() {
    for (auto& [device, system] : systems_) {
        const int folder = system.folder.Number();
        if (folder < 0) continue;
        const bool done = Retry([&] { return calls_.SyncFileSystem(folder); }) == 0;
        system.flushed = done ? Result<void>() : SystemFailure(errno);
    }
}

Result<void> JointFlush::FlushedOf(Replacement& replacement) const {
    const auto system = systems_.find(replacement.Device());
    const bool asked = system != systems_.end() && system->second.folder.Number() >= 0;
    return asked ? system->second.flushed : replacement.Flush();
}

}  // namespace kestrel::system
