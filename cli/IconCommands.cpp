#include "cli/IconCommands.h"

#include <algorithm>
#include <cerrno>
#include <optional>

#include "cli/Numbers.h"
#include "imaging/FilterPipeline.h"
#include "imaging/Recoloring.h"
#include "imaging/Transforms.h"
#include "imaging/filters/mFilterG.h"

namespace kestrel::cli {

namespace {

using document::IconDocument;

constexpr int kLeastGamma = 1;
constexpr int kMostGamma = 9999;

// Nothing waits for events here.
class NoEvents : public services::MessageLoop {
  public:
    void DoEvents() override {}
};

template <imaging::Turn kTurn>
void TurnIcon(IconDocument& icon) {
    icon.PicImage = imaging::Rotated(icon.PicImage, kTurn);
    icon.PicMask = imaging::Rotated(icon.PicMask, kTurn);
}

template <imaging::FlipAxis kAxis>
void FlipIcon(IconDocument& icon) {
    imaging::Flip(icon.PicImage, kAxis);
    imaging::Flip(icon.PicMask, kAxis);
}

template <imaging::Reflection kReflection>
void MirrorIcon(IconDocument& icon) {
    imaging::Mirror(icon.PicImage, kReflection);
    imaging::Mirror(icon.PicMask, kReflection);
}

void ButtonizeIcon(IconDocument& icon) {
    NoEvents loop;
    imaging::Buttonize(icon, loop);
}
void GreyIcon(IconDocument& icon) {
    imaging::Grayscale(icon.PicImage, icon.PicMask);
}
void InvertIcon(IconDocument& icon) {
    imaging::Invert(icon.PicImage, icon.PicMask);
}

struct Change {
    std::string_view key;
    void (*change)(IconDocument& icon);
};
constexpr Change kChanges[] = {
    {"mnuRotateOpts0", TurnIcon<imaging::Turn::Left>},
    {"mnuRotateOpts1", TurnIcon<imaging::Turn::Right>},
    {"mnuRotateOpts3", FlipIcon<imaging::FlipAxis::Horizontal>},
    {"mnuRotateOpts4", FlipIcon<imaging::FlipAxis::Vertical>},
    {"mnuMirrorOpts0", MirrorIcon<imaging::Reflection::LeftIntoRight>},
    {"mnuMirrorOpts1", MirrorIcon<imaging::Reflection::RightIntoLeft>},
    {"mnuMirrorOpts2", MirrorIcon<imaging::Reflection::TopIntoBottom>},
    {"mnuMirrorOpts3", MirrorIcon<imaging::Reflection::BottomIntoTop>},
    {"mnuImageOpts1", ButtonizeIcon},
    {"mnuImageOpts2", GreyIcon},
    {"mnuImageOpts3", InvertIcon},
};

tl::unexpected<Error> BadCommand(std::string_view what, std::string_view why) {
    return Fail(EINVAL, std::string(what).append(": ").append(why));
}

std::optional<IconCommand> FindCommand(std::string_view key) {
    if (const filters::FilterRow* filter = filters::FindFilter(key))
        return IconCommand{filter, filter->Param, nullptr};
    const auto* row = std::find_if(std::begin(kChanges), std::end(kChanges),
                                   [key](const Change& change) { return change.key == key; });
    if (row == std::end(kChanges)) return std::nullopt;
    return IconCommand{nullptr, 0, row->change};
}

Result<IconCommand> ReadCommand(std::string_view item) {
    const std::size_t equals = item.find('=');
    const std::string_view key = item.substr(0, equals);
    if (key.empty()) return BadCommand("COMMANDS", "a key is missing");
    auto command = FindCommand(key);
    if (!command) return BadCommand(key, "no such command");
    if (command->filter != nullptr && command->filter->FilterId == filters::kGammaFilter) {
        const auto value = equals == std::string_view::npos
                               ? std::nullopt
                               : NumberIn(item.substr(equals + 1), kLeastGamma, kMostGamma);
        if (!value) return BadCommand(item, "needs a value from 1 to 9999, as in mnuGamma=200");
        command->param = static_cast<int>(*value);
    } else if (equals != std::string_view::npos) {
        return BadCommand(item, "this command takes no value");
    }
    return *command;
}

void ApplyFilter(const IconCommand& command, system::RandomNumbers& random, IconDocument& icon) {
    NoEvents loop;
    gdi::Surface picture = imaging::PrepareFilterSource(icon.PicImage);
    filters::mFilterG(loop, random).RunFilter(command.filter->FilterId, picture, command.param);
    imaging::ApplyFilterResult(picture, icon.PicImage, icon.PicMask);
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

void RunCommands(const std::vector<IconCommand>& commands, std::uint32_t seed, IconDocument& icon) {
    system::RandomNumbers random(seed);
    for (const IconCommand& command : commands) {
        if (command.filter != nullptr) {
            ApplyFilter(command, random, icon);
        } else {
            command.change(icon);
        }
    }
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
    for (const filters::FilterRow& filter : filters::Filters())
        add(filter.key);
    for (const Change& change : kChanges)
        add(change.key);
    return lines;
}

}  // namespace kestrel::cli
