#include "imaging/Operations.h"

#include <algorithm>
#include <vector>

#include "imaging/FilterPipeline.h"
#include "imaging/Recoloring.h"
#include "imaging/Transforms.h"
#include "platform/system/LetterCase.h"

namespace kestrel::imaging {

namespace {

// Adapts a function that needs no message loop.
template <auto change, auto... arguments>
void Quietly(gdi::IconPlanes& planes, services::MessageLoop& /*loop*/) {
    change(planes, arguments...);
}

constexpr Operation kChanges[] = {
    {"mnuRotateOpts0", "rotate-left", "a quarter turn", OnSelection::Lifted,
     Quietly<Rotate, Turn::Left>},
    {"mnuRotateOpts1", "rotate-right", "a quarter turn", OnSelection::Lifted,
     Quietly<Rotate, Turn::Right>},
    {"mnuRotateOpts3", "flip-horizontal", "left and right trade places", OnSelection::Unrecorded,
     Quietly<Flip, FlipAxis::Horizontal>},
    {"mnuRotateOpts4", "flip-vertical", "top and bottom trade places", OnSelection::Unrecorded,
     Quietly<Flip, FlipAxis::Vertical>},
    {"mnuMirrorOpts0", "reflect-left", "the left half mirrored into the right",
     OnSelection::Recorded, Quietly<Mirror, Reflection::LeftIntoRight>},
    {"mnuMirrorOpts1", "reflect-right", "the right half mirrored into the left",
     OnSelection::Recorded, Quietly<Mirror, Reflection::RightIntoLeft>},
    {"mnuMirrorOpts2", "reflect-top", "the top half mirrored into the bottom",
     OnSelection::Recorded, Quietly<Mirror, Reflection::TopIntoBottom>},
    {"mnuMirrorOpts3", "reflect-bottom", "the bottom half mirrored into the top",
     OnSelection::Recorded, Quietly<Mirror, Reflection::BottomIntoTop>},
    {"mnuImageOpts1", "buttonize", "darkens the rim as of a button", OnSelection::PutDown,
     Buttonize},
    {"mnuImageOpts2", "grayscale", "grey as bright as the eye sees the colour",
     OnSelection::Unrecorded, Quietly<Grayscale>},
    {"mnuImageOpts3", "invert", "inverts each colour, as negative does", OnSelection::Unrecorded,
     Quietly<Invert>},
};

std::vector<Operation> FiltersAndChanges() {
    std::vector<Operation> all;
    for (const filters::FilterRow& filter : filters::Filters())
        all.push_back(
            {filter.key, filter.name, filter.meaning, OnSelection::Recorded, nullptr, &filter});
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

const Operation* FindNamedOperation(std::string_view name) {
    const auto all = Operations();
    const auto found = std::ranges::find_if(all, [name](const Operation& operation) {
        return system::SameName(operation.name, name) || system::SameName(operation.key, name);
    });
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
