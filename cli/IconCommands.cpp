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
    const std::string_view key = item.substr(0, equals);
    if (key.empty()) return BadCommand("COMMANDS", "a key is missing");
    IconCommand command{imaging::FindOperation(key)};
    if (command.operation == nullptr) return BadCommand(key, "no such command");
    if (command.operation->TakesValue()) {
        const auto value = equals == std::string_view::npos
                               ? std::nullopt
                               : NumberIn(item.substr(equals + 1), kLeastGamma, kMostGamma);
        if (!value) return BadCommand(item, "needs a value from 1 to 9999, as in mnuGamma=200");
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

std::string CommandKeys() {
    constexpr std::size_t kLineLength = 76;
    std::string lines = " ";
    std::size_t length = lines.size();
    const auto add = [&](std::string_view key) {
        if (length + 1 + key.size() > kLineLength) {
            lines += "\n ";
            length = 1;
        }
        lines.append(" ").append(key);
        length += 1 + key.size();
    };
    for (const imaging::Operation& operation : imaging::Operations())
        add(operation.key);
    return lines;
}

}  // namespace kestrel::cli
