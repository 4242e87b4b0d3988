// Times two programs in turns, from their start to their end:
// run_times <rounds> <program> [argument...] -- <program> [argument...]
// Prints the median of each in microseconds, then the most memory of each in KB. Both must succeed;
// what they print is dropped.

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

struct Program {
    char** arguments;
    std::vector<double> microseconds{};
    long peak = 0;
};

bool RunOnce(Program& program, const posix_spawn_file_actions_t& silence) {
    pid_t process = 0;
    int status = 0;
    rusage usage{};
    const auto start = Clock::now();
    if (posix_spawnp(&process, program.arguments[0], &silence, nullptr, program.arguments,
                     environ) != 0 ||
        wait4(process, &status, 0, &usage) != process)
        return false;
    const std::chrono::duration<double, std::micro> time = Clock::now() - start;
    program.microseconds.push_back(time.count());
    program.peak = std::max(program.peak, usage.ru_maxrss);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

double Median(std::vector<double>& values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

}  // namespace

int main(int argc, char* argv[]) {
    char** const end = argv + argc;
    char** const parting =
        std::find_if(argv, end, [](const char* word) { return std::string_view(word) == "--"; });
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 0;
    if (rounds < 1 || parting - argv < 3 || end - parting < 2) {
        std::fputs("Usage: run_times <rounds> <program> ... -- <program> ...\n", stderr);
        return 2;
    }
    *parting = nullptr;
    Program programs[] = {{argv + 2}, {parting + 1}};

    posix_spawn_file_actions_t silence;
    posix_spawn_file_actions_init(&silence);
    for (const int stream : {1, 2})
        posix_spawn_file_actions_addopen(&silence, stream, "/dev/null", O_WRONLY, 0);
    for (int round = 0; round < rounds; ++round) {
        for (Program& program : programs) {
            if (RunOnce(program, silence)) continue;
            std::fprintf(stderr, "%s fails\n", program.arguments[0]);
            return 1;
        }
    }
    posix_spawn_file_actions_destroy(&silence);
    std::printf("%.0f %.0f %ld %ld\n", Median(programs[0].microseconds),
                Median(programs[1].microseconds), programs[0].peak, programs[1].peak);
}
