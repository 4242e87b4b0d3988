#include "platform/gdi/Blit.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace kestrel::gdi {
namespace {

using std::int64_t;

// The steps first..end-1 of a block along one axis that lie inside both surfaces.
struct Steps {
    int64_t first;
    int64_t end;
    int64_t Count() const { return end - first; }
    bool Empty() const { return end <= first; }
};

// One axis of a stretch: target pixel `to + i` takes source pixel `from + SourceStep(i)`, for i
// below `toSize`. A plain copy is the case of equal sizes. All products stay below 2^63, since
// steps and sizes are below 2^31.
struct Axis {
    int64_t to;
    int64_t toSize;
    int64_t from;
    int64_t fromSize;

    int64_t SourceStep(int64_t i) const { return i * fromSize / toSize; }

    // The first i that reads source step `step`, or toSize when there is none.
    int64_t FirstReading(int64_t step) const {
        const int64_t inside = std::clamp<int64_t>(step, 0, fromSize);
        return (inside * toSize + fromSize - 1) / fromSize;
    }

    Steps Visible(int targetSize, int sourceSize) const {
        if (toSize <= 0 || fromSize <= 0) return {0, 0};
        return {std::max({int64_t{0}, -to, FirstReading(-from)}),
                std::min({toSize, targetSize - to, FirstReading(sourceSize - from)})};
    }
};

std::span<const COLORREF> Part(std::span<const COLORREF> row, int64_t first, int64_t count) {
    return row.subspan(static_cast<std::size_t>(first), static_cast<std::size_t>(count));
}

template <typename Combine>
void CombineRow(Surface& target, int64_t x, int64_t y, std::span<const COLORREF> pixels,
                Combine combine) {
    COLORREF* const out = target.Row(static_cast<int>(y)).data() + x;
    std::transform(pixels.begin(), pixels.end(), out, out, combine);
}

// Calls `draw` with the function that `op` stands for, so that the choice is made once a block.
template <typename Draw>
void WithCombine(RasterOp op, Draw draw) {
    switch (op) {
        case RasterOp::Copy:
            return draw([](COLORREF source, COLORREF) { return source; });
        case RasterOp::And:
            return draw([](COLORREF source, COLORREF target) { return target & source; });
        case RasterOp::Xor:
            return draw([](COLORREF source, COLORREF target) { return target ^ source; });
    }
}

// The source columns of the visible steps, adding up the remainders instead of dividing.
std::vector<std::uint32_t> SourceColumns(const Axis& axis, const Steps& steps) {
    const int64_t whole = axis.fromSize / axis.toSize;
    const int64_t part = axis.fromSize % axis.toSize;
    int64_t remainder = steps.first * axis.fromSize % axis.toSize;
    int64_t at = axis.from + axis.SourceStep(steps.first);
    std::vector<std::uint32_t> columns(static_cast<std::size_t>(steps.Count()));
    for (std::uint32_t& column : columns) {
        column = static_cast<std::uint32_t>(at);
        remainder += part;
        const bool carry = remainder >= axis.toSize;
        remainder -= carry ? axis.toSize : 0;
        at += whole + (carry ? 1 : 0);
    }
    return columns;
}

}  // namespace

void BitBlt(Surface& target, int x, int y, int width, int height, const Surface& source,
            int sourceX, int sourceY, RasterOp op) {
    if (&target == &source) {
        return BitBlt(target, x, y, width, height, Surface(source), sourceX, sourceY, op);
    }
    const Steps columns = Axis{x, width, sourceX, width}.Visible(target.Width(), source.Width());
    const Steps rows = Axis{y, height, sourceY, height}.Visible(target.Height(), source.Height());
    if (columns.Empty()) return;
    WithCombine(op, [&](auto combine) {
        for (int64_t row = rows.first; row < rows.end; ++row) {
            const auto pixels = Part(source.Row(static_cast<int>(sourceY + row)),
                                     sourceX + columns.first, columns.Count());
            CombineRow(target, x + columns.first, y + row, pixels, combine);
        }
    });
}

void StretchBlt(Surface& target, Rect to, const Surface& source, Rect from, RasterOp op) {
    if (&target == &source) return StretchBlt(target, to, Surface(source), from, op);
    const Axis across{to.left, to.width, from.left, from.width};
    const Axis down{to.top, to.height, from.top, from.height};
    const Steps columns = across.Visible(target.Width(), source.Width());
    const Steps rows = down.Visible(target.Height(), source.Height());
    if (columns.Empty() || rows.Empty()) return;
    const auto sourceColumns = SourceColumns(across, columns);
    std::vector<COLORREF> line(sourceColumns.size());
    WithCombine(op, [&](auto combine) {
        int64_t lineRow = -1;
        for (int64_t row = rows.first; row < rows.end; ++row) {
            const int64_t sourceRow = down.from + down.SourceStep(row);
            if (sourceRow != lineRow) {
                const COLORREF* const pixels = source.Row(static_cast<int>(sourceRow)).data();
                std::ranges::transform(sourceColumns, line.begin(),
                                       [pixels](std::uint32_t column) { return pixels[column]; });
                lineRow = sourceRow;
            }
            CombineRow(target, across.to + columns.first, down.to + row, line, combine);
        }
    });
}

void PatBlt(Surface& target, Rect area, COLORREF color) {
    const auto end = [](int start, int size, int limit) {
        return static_cast<int>(std::min<int64_t>(int64_t{start} + size, limit));
    };
    const int left = std::max(area.left, 0);
    const int right = end(area.left, area.width, target.Width());
    const int bottom = end(area.top, area.height, target.Height());
    if (left >= right) return;
    for (int y = std::max(area.top, 0); y < bottom; ++y) {
        const auto row = target.Row(y);
        std::fill(row.begin() + left, row.begin() + right, color & kWhite);
    }
}

}  // namespace kestrel::gdi
