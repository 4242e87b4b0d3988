#include "windows/CommandRunner.h"

#include <QScopedValueRollback>

namespace kestrel::windows {

void CommandRunner::Run(const std::function<void()>& command) {
    if (running_) return;
    const QScopedValueRollback running(running_, true);
    editor_.EndGesture();
    command();
    grid_.FollowPointer();
    window_.RefreshEditCommands();
    editor_.EndStep();
}

}  // namespace kestrel::windows
