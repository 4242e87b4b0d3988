#include <utility>

#include "editing/Editor.h"

namespace kestrel::editing {

namespace {

constexpr std::array kWells{Button::Left, Button::Right};

}  // namespace

Work Editor::CurrentWork() const {
    Work work;
    work.planes = Pack(document_.Planes());
    if (selection_.SelectionFloating()) {
        const Corners& marquee = selection_.Marquee();
        work.floating = Work::Floating{{marquee.x1, marquee.y1}, selection_.Planes()};
    }
    work.file = {document_.FilePath, document_.FileTitle, document_.FileOnDisk,
                 document_.MultipleIcons};
    work.modified = document_.Modified;
    for (std::size_t i = 0; i < kWells.size(); ++i)
        work.wells[i] = {wells_.PenColor(kWells[i]), wells_.IsTransparent(kWells[i])};
    work.colors = {palette_.Colors(), palette_.Kind(), palette_.ChkPal()};
    return work;
}

void Editor::Restore(const Work& work, PictureHistory history) {
    ResetDocument();
    const EditSteps::Step step(steps_);
    document_.FilePath = work.file.path;
    document_.FileTitle = work.file.title;
    document_.FileOnDisk = work.file.onDisk;
    document_.MultipleIcons = work.file.multipleIcons;
    ShowTitle();
    Unpack(work.planes, EditIcon(Leaves::NoEntry).Planes());
    if (!history.IsEmpty()) history_.Replace(std::move(history));
    for (std::size_t i = 0; i < kWells.size(); ++i) {
        wells_.SetPenColor(kWells[i], work.wells[i].color);
        if (work.wells[i].transparent) wells_.SetTransparent(kWells[i]);
    }
    palette_.SetColors(work.colors.palette, work.colors.kind);
    palette_.SetChkPal(work.colors.chkPal);
    if (work.floating) {
        tools_.SelectTool(ToolId::Selection);
        selection_.Float(work.floating->planes, work.floating->leftTop);
    }
    document_.Modified = work.modified;
    window_.RefreshEditCommands();
}

}  // namespace kestrel::editing
