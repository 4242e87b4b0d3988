#include "desktop/DesktopShell.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <ctime>
#include <string_view>
#include <utility>

#include "platform/system/PathText.h"
#include "platform/system/SystemError.h"

namespace kestrel::desktop {
namespace {

// How a program is started: in a session of its own, with no input and with the default signal
// handling, whatever this process ignores or blocks.
class SpawnSettings {
  public:
    SpawnSettings() {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawnattr_init(&attributes_);
        sigset_t signals;
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&attributes_, &signals);
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&attributes_, &signals);
        posix_spawnattr_setflags(
            &attributes_, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    SpawnSettings(const SpawnSettings&) = delete;
    SpawnSettings& operator=(const SpawnSettings&) = delete;
    ~SpawnSettings() {
        posix_spawnattr_destroy(&attributes_);
        posix_spawn_file_actions_destroy(&actions_);
    }

    // 0 or the errno value of the failure. Allocates nothing.
    int Start(char* const* words, pid_t& process) const {
        return posix_spawnp(&process, words[0], &actions_, &attributes_, words, environ);
    }

  private:
    posix_spawn_file_actions_t actions_{};
    posix_spawnattr_t attributes_{};
};

// How long a program that is started may take to fail, in steps of a fiftieth of a second.
enum class Patience { None = 0, Opener = 35 };
constexpr long kStep = 20'000'000;  // nanoseconds

// The exit status of the process in between for a program that started and soon failed; no errno
// value is as high.
constexpr int kFailedSoon = 255;

// Whether the program ends with a failure before patience does. Allocates nothing.
bool FailsSoon(pid_t program, Patience patience) {
    for (int step = 0; step < static_cast<int>(patience); ++step) {
        int status = 0;
        if (waitpid(program, &status, WNOHANG) == program) return status != 0;
        const timespec pause{0, kStep};
        nanosleep(&pause, nullptr);
    }
    return false;
}

// Starts the program from a process in between that ends at once, or when patience does, so that
// the system takes the program over. That process hands the failure on as its exit status.
Result<void> StartDetached(char* const* words, Patience patience) {
    const SpawnSettings settings;
    const pid_t between = fork();
    if (between < 0) return system::SystemFailure(errno);
    if (between == 0) {
        pid_t program = 0;
        const int failure = settings.Start(words, program);
        _exit(failure == 0 && FailsSoon(program, patience) ? kFailedSoon : failure);
    }
    int status = 0;
    // Where ended processes are reaped unasked there is no status to learn.
    if (system::Retry([&] { return waitpid(between, &status, 0); }) < 0) return {};
    if (!WIFEXITED(status)) return system::SystemFailure(ECANCELED);
    if (WEXITSTATUS(status) == kFailedSoon) return Fail(ECHILD, "The program gave up");
    if (WEXITSTATUS(status) != 0) return system::SystemFailure(WEXITSTATUS(status));
    return {};
}

Result<void> Run(std::vector<std::string> texts, Patience patience) {
    std::vector<char*> words;
    words.reserve(texts.size() + 1);
    for (std::string& text : texts) {
        words.push_back(text.data());
    }
    words.push_back(nullptr);
    return StartDetached(words.data(), patience);
}

// A path that can be taken neither for an option nor for a name to be looked up on PATH.
std::string PlainPath(const std::string& path) {
    std::string found = system::ResolvePath(path);
    return found.find('/') == std::string::npos || found.starts_with('-') ? "./" + found : found;
}

bool IsUrl(std::string_view target) {
    return target.find("://") != std::string_view::npos || target.starts_with("mailto:");
}

}  // namespace

Result<void> DesktopShell::RunProgram(const std::string& program,
                                      const std::vector<std::string>& arguments) {
    const bool isPath = program.find_first_of("\\/") != std::string::npos;
    std::vector<std::string> texts{isPath ? PlainPath(program) : program};
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    return Run(std::move(texts), Patience::None);
}

Result<void> DesktopShell::Open(const std::string& target) {
    const std::string opened = IsUrl(target) ? target : PlainPath(target);
    struct stat status {};
    if (!IsUrl(target) && stat(opened.c_str(), &status) < 0) return system::SystemFailure(errno);
    Result<void> started = Run({"xdg-open", opened}, Patience::Opener);
    if (started || started.error().number != ENOENT) return started;
    return Run({"gio", "open", opened}, Patience::Opener);
}

}  // namespace kestrel::desktop
