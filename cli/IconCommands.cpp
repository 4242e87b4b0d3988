#include "cli/IconCommands.h"

#include <optional>

#include "cli/ExitCodes.h"
#include "cli/Numbers.h"

namespace kestrel::cli {

namespace {

constexpr int kLeastGamma = 1;
constexpr int kMostGamma = 9999;

// Nothing waits for events here.
class NoEvents : public services::MessageLoop {
  public:
    void DoEvents() override {}
};

tl::unexpected<Error> BadCommand(std::string_view what, std::string_view why) {
    return WrongUsage(std::string(what).append(": ").append(why));
}

Result<IconCommand> ReadCommand(std::string_view item) {
    const std::size_t equals = item.find('=');
    const std::string_view name = item.substr(0, equals);
    if (name.empty()) return BadCommand("COMMANDS", "a name is missing");
    IconCommand command{imaging::FindNamedOperation(name)};
    if (command.operation == nullptr) return BadCommand(name, "no such command");
    if (command.operation->TakesValue()) {
        const auto value = equals == std::string_view::npos
                               ? std::nullopt
                               : NumberIn(item.substr(equals + 1), kLeastGamma, kMostGamma);
        if (!value) return BadCommand(item, "needs a value from 1 to 9999, as in gamma=200");
        command.value = static_cast<int>(*value);
    } else if (equals != std::string_view::npos) {
        return BadCommand(item, "this command takes no value");
    }
    return command;
}

}  // namespace

Result<std::vector<IconCommand>> ReadCommands(std::string_view list) {
    std::vector<IconCommand> commands;
    for (const std::string_view item : Split(list)) {
        const auto command = ReadCommand(item);
        if (!command) return tl::unexpected(command.error());
        commands.push_back(*command);
    }
    return commands;
}

void RunCommands(const std::vector<IconCommand>& commands, std::uint32_t seed,
                 gdi::IconPlanes& icon) {
    NoEvents loop;
    system::RandomNumbers random(seed);
    filters::mFilterG filters(loop, random);
    for (const IconCommand& command : commands)
        imaging::RunOperation(*command.operation, command.value, icon, filters);
}

std::string CommandList() {
    constexpr std::size_t kNameWidth = 21;
    constexpr std::size_t kKeyWidth = 16;
    std::string lines;
    const auto add = [&](std::string_view word, std::size_t width) {
        lines.append(word).append(width - word.size(), ' ');
    };
    for (const imaging::Operation& operation : imaging::Operations()) {
        lines += lines.empty() ? "  " : "\n  ";
        add(operation.name, kNameWidth);
        add(operation.key, kKeyWidth);
        lines += operation.meaning;
    }
    return lines;
}

}  // namespace kestrel::cli
