#pragma once

#include <optional>
#include <string_view>

#include "commands/Dialogs.h"
#include "commands/ImageTarget.h"
#include "imaging/filters/FilterTable.h"
#include "imaging/filters/mFilterG.h"

namespace kestrel::commands {

// The commands of the filter menu, on the selection or the whole icon.
class FilterCommands {
  public:
    FilterCommands(editing::Editor& editor, Dialogs& dialogs, services::MessageLoop& loop,
                   system::RandomNumbers& random)
        : target_(editor), dialogs_(dialogs), filters_(loop, random) {}

    // Runs the command with this key; without one nothing happens.
    void Run(std::string_view key);

  private:
    // None where the user does not want the filter.
    std::optional<int> ParamOf(const filters::FilterRow& row);

    ImageTarget target_;
    Dialogs& dialogs_;
    filters::mFilterG filters_;
};

}  // namespace kestrel::commands
