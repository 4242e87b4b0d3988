#include "editing/WorkRecords.h"

#include <algorithm>
#include <functional>
#include <type_traits>
#include <utility>

#include "document/JournalRecords.h"
#include "editing/RecordWays.h"

namespace kestrel::editing {

namespace {

// Numbers of the operations; those of the history are its own.
enum class Op : std::uint8_t {
    Planes = 16,
    NothingFloats = 17,
    Floats = 18,
    FloatMoves = 19,
    Modified = 20,
    File = 21,
    Wells = 22,
    Colors = 23
};

// Number and length of what the history did.
constexpr std::size_t kActBytes = 3;
// Records of many operations are about so long, in bytes.
constexpr std::size_t kLongRecord = std::size_t{64} << 10;

// Each of these states the layout of a value, for both ways.

template <class Way, class Place>
void CarryPlace(Way& way, Place& place) {
    way.Coordinate(place.x);
    way.Coordinate(place.y);
}

template <class Way, class Floating>
void CarryFloating(Way& way, Floating& floating) {
    CarryPlace(way, floating.leftTop);
    way.Planes(floating.planes);
}

template <class Way, class File>
void CarryFile(Way& way, File& file) {
    way.Text(file.path);
    way.Text(file.title);
    way.Number(file.multipleIcons, 1);
    bool onDisk = file.onDisk.has_value();
    system::FileIdentity disk = file.onDisk.value_or(system::FileIdentity{});
    way.Number(onDisk, 1);
    way.Number(disk.device, 8);
    way.Number(disk.inode, 8);
    way.Number(disk.size, 8);
    way.Number(disk.seconds, 8);
    way.Number(disk.nanoseconds, 8);
    if constexpr (!std::is_const_v<File>) {
        if (onDisk) file.onDisk = disk;
    }
}

template <class Way, class Wells>
void CarryWells(Way& way, Wells& wells) {
    for (auto& well : wells) {
        way.Color(well.color);
        way.Number(well.transparent, 1);
    }
}

template <class Way, class Colors>
void CarryColors(Way& way, Colors& colors) {
    way.Number(colors.kind, 1);
    way.Number(colors.chkPal, 1);
    way.Require(colors.kind <= PaletteKind::Own);
    for (auto& color : colors.palette)
        way.Color(color);
}

void PutFloatingChanges(formats::ByteWriter& out, RecordPutter& way, const Work& from,
                        const Work& to) {
    if (!to.floating) {
        if (from.floating) out.U8(static_cast<std::uint8_t>(Op::NothingFloats));
    } else if (!from.floating || !from.floating->planes.SamePixels(to.floating->planes)) {
        out.U8(static_cast<std::uint8_t>(Op::Floats));
        CarryFloating(way, *to.floating);
    } else if (from.floating->leftTop != to.floating->leftTop) {
        out.U8(static_cast<std::uint8_t>(Op::FloatMoves));
        CarryPlace(way, to.floating->leftTop);
    }
}

void ReplayAct(RecordTaker& in, HistoryAct act, ReplayedWork& replayed) {
    PictureDifference change;
    in.Difference(change);
    if (!in.IsSound()) return;
    replayed.history.Do(act, std::move(change));
    if (SetsPlanes(act)) replayed.work.planes = replayed.history.Present();
}

// A value in whose bytes there is no sense leaves the old one.
template <class Value>
void Take(RecordTaker& in, Value& value, void (*carry)(RecordTaker& in, Value& value)) {
    Value taken{};
    carry(in, taken);
    if (in.IsSound()) value = std::move(taken);
}

void ReplayOp(RecordTaker& in, Op op, Work& work) {
    PictureDifference change;
    Work::Floating floating;
    GridPoint leftTop;
    switch (op) {
        case Op::Planes:
            in.Difference(change);
            return change.ApplyTo(work.planes);
        case Op::NothingFloats:
            return work.floating.reset();
        case Op::Floats:
            Take(in, floating, CarryFloating);
            if (in.IsSound()) work.floating = std::move(floating);
            return;
        case Op::FloatMoves:
            in.Require(work.floating.has_value());
            Take(in, leftTop, CarryPlace);
            if (in.IsSound()) work.floating->leftTop = leftTop;
            return;
        case Op::Modified:
            return in.Number(work.modified, 1);
        case Op::File:
            return Take(in, work.file, CarryFile);
        case Op::Wells:
            return Take(in, work.wells, CarryWells);
        case Op::Colors:
            return Take(in, work.colors, CarryColors);
    }
    in.Require(false);
}

// Whether the record was sound to its end.
bool ReplayRecord(formats::Bytes record, ReplayedWork& replayed) {
    RecordTaker in(record);
    while (in.IsSound() && !in.AtEnd()) {
        std::uint8_t number = 0;
        in.Number(number, 1);
        if (number >= static_cast<std::uint8_t>(Op::Planes)) {
            ReplayOp(in, static_cast<Op>(number), replayed.work);
        } else {
            in.Require(IsHistoryAct(number));
            ReplayAct(in, static_cast<HistoryAct>(number), replayed);
        }
    }
    return in.IsSound();
}

// How many of the steps next to the present picture have room; takes what they need of it.
std::ptrdiff_t CountFitting(const PictureHistory::Steps& steps, std::size_t& room) {
    const auto fits = [&room](const PictureDifference& step) {
        const std::size_t needed = step.Bytes().size() + kActBytes;
        if (needed > room) return false;
        room -= needed;
        return true;
    };
    return std::find_if_not(steps.rbegin(), steps.rend(), fits) - steps.rbegin();
}

void PutHistory(const std::function<void(HistoryAct, const PictureDifference&)>& put,
                const PictureHistory& history, std::size_t room) {
    const auto& redo = history.RedoSteps();
    const auto& undo = history.UndoSteps();
    const auto held = redo.end() - CountFitting(redo, room);
    const auto kept = undo.end() - CountFitting(undo, room);
    PackedPicture oldest = history.Present();
    std::for_each(kept, undo.end(), [&](const auto& step) { step.ApplyTo(oldest); });
    put(HistoryAct::Recorded, {EmptyPicture(), oldest});
    std::for_each(kept, undo.end(), [&](const auto& step) { put(HistoryAct::Recorded, step); });
    std::for_each(held, redo.end(), [&](const auto& step) { put(HistoryAct::RedoHeld, step); });
}

}  // namespace

void PutAct(formats::ByteWriter& out, HistoryAct act, const PictureDifference& change) {
    out.U8(static_cast<std::uint8_t>(act));
    RecordPutter(out).Difference(change);
}

void PutChanges(formats::ByteWriter& out, const Work& from, const Work& to) {
    RecordPutter way(out);
    const auto put = [&out](Op op, bool differs) {
        if (differs) out.U8(static_cast<std::uint8_t>(op));
        return differs;
    };
    if (put(Op::Planes, from.planes != to.planes)) way.Difference({from.planes, to.planes});
    PutFloatingChanges(out, way, from, to);
    if (put(Op::Modified, from.modified != to.modified)) way.Number(to.modified, 1);
    if (put(Op::File, from.file != to.file)) CarryFile(way, to.file);
    if (put(Op::Wells, from.wells != to.wells)) CarryWells(way, to.wells);
    if (put(Op::Colors, from.colors != to.colors)) CarryColors(way, to.colors);
}

std::vector<std::uint8_t> WholeJournal(const Work& work, const PictureHistory& history,
                                       std::size_t historyBytes) {
    std::vector<std::uint8_t> journal = document::EmptyJournal();
    formats::ByteWriter record;
    const auto put = [&](HistoryAct act, const PictureDifference& change) {
        PutAct(record, act, change);
        if (record.Size() > kLongRecord) document::PutRecord(journal, record.Take());
    };
    // Whatever of the history is lost, the rest is known.
    Work begun = work;
    begun.planes = EmptyPicture();
    begun.floating.reset();
    PutChanges(record, {}, begun);
    if (!history.IsEmpty()) {
        PutHistory(put, history, historyBytes);
        begun.planes = history.Present();
    }
    PutChanges(record, begun, work);
    document::PutRecord(journal, record.Take());
    return journal;
}

ReplayedWork Replay(formats::Bytes journal) {
    ReplayedWork replayed;
    document::JournalReader records(journal);
    while (const auto record = records.Next()) {
        if (!ReplayRecord(*record, replayed)) break;
    }
    return replayed;
}

}  // namespace kestrel::editing
