#include "imaging/Operations.h"

#include <algorithm>
#include <vector>

#include "imaging/FilterPipeline.h"
#include "imaging/Recoloring.h"
#include "imaging/Transforms.h"

namespace kestrel::imaging {

namespace {

// Adapts a function that needs no message loop.
template <auto change, auto... arguments>
void Quietly(gdi::IconPlanes& planes, services::MessageLoop& /*loop*/) {
    change(planes, arguments...);
}

constexpr Operation kChanges[] = {
    {"mnuRotateOpts0", OnSelection::Lifted, Quietly<Rotate, Turn::Left>},
    {"mnuRotateOpts1", OnSelection::Lifted, Quietly<Rotate, Turn::Right>},
    {"mnuRotateOpts3", OnSelection::Unrecorded, Quietly<Flip, FlipAxis::Horizontal>},
    {"mnuRotateOpts4", OnSelection::Unrecorded, Quietly<Flip, FlipAxis::Vertical>},
    {"mnuMirrorOpts0", OnSelection::Recorded, Quietly<Mirror, Reflection::LeftIntoRight>},
    {"mnuMirrorOpts1", OnSelection::Recorded, Quietly<Mirror, Reflection::RightIntoLeft>},
    {"mnuMirrorOpts2", OnSelection::Recorded, Quietly<Mirror, Reflection::TopIntoBottom>},
    {"mnuMirrorOpts3", OnSelection::Recorded, Quietly<Mirror, Reflection::BottomIntoTop>},
    {"mnuImageOpts1", OnSelection::PutDown, Buttonize},
    {"mnuImageOpts2", OnSelection::Unrecorded, Quietly<Grayscale>},
    {"mnuImageOpts3", OnSelection::Unrecorded, Quietly<Invert>},
};

std::vector<Operation> FiltersAndChanges() {
    std::vector<Operation> all;
    for (const filters::FilterRow& filter : filters::Filters())
        all.push_back({filter.key, OnSelection::Recorded, nullptr, &filter});
    all.insert(all.end(), std::begin(kChanges), std::end(kChanges));
    return all;
}

}  // namespace

bool Operation::TakesValue() const {
    return filter != nullptr && filter->FilterId == filters::kGammaFilter;
}

std::span<const Operation> Operations() {
    static const std::vector<Operation> kAll = FiltersAndChanges();
    return kAll;
}

const Operation* FindOperation(std::string_view key) {
    const auto all = Operations();
    const auto found = std::ranges::find(all, key, &Operation::key);
    return found == all.end() ? nullptr : &*found;
}

void RunOperation(const Operation& operation, int value, gdi::IconPlanes& planes,
                  filters::mFilterG& filters) {
    if (operation.filter == nullptr) return operation.change(planes, filters.Loop());
    gdi::Surface picture = PrepareFilterSource(planes.image);
    const int param = operation.TakesValue() ? value : operation.filter->Param;
    filters.RunFilter(operation.filter->FilterId, picture, param);
    ApplyFilterResult(picture, planes);
}

}  // namespace kestrel::imaging
