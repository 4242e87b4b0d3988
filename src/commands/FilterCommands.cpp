#include "commands/FilterCommands.h"

#include "imaging/FilterPipeline.h"

namespace kestrel::commands {

void FilterCommands::Run(std::string_view key) {
    const filters::FilterRow* row = filters::FindFilter(key);
    if (row == nullptr) return;
    gdi::Surface Picture1 = imaging::PrepareFilterSource(target_.Image());
    const std::optional<int> Param = ParamOf(*row);
    if (Param) filters_.RunFilter(row->FilterId, Picture1, *Param);
    // Cancelled, or with a filter under way, the command still leaves its entry.
    imaging::ApplyFilterResult(Picture1, target_.Image(), target_.Mask());
    target_.Show();
    target_.Record();
}

std::optional<int> FilterCommands::ParamOf(const filters::FilterRow& row) {
    if (row.FilterId != filters::kGammaFilter) return row.Param;
    const std::optional<int> gamma = dialogs_.AskGamma();
    // There is no gamma factor of 0.
    return gamma == 0 ? std::nullopt : gamma;
}

}  // namespace kestrel::commands
