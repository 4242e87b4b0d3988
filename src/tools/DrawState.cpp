#include "tools/DrawState.h"

#include <array>

namespace kestrel::tools {

namespace {

using gdi::COLORREF;
using gdi::IconPlanes;
using gdi::Surface;

constexpr COLORREF kHighlight = 0x0080FF;
constexpr COLORREF kLight = gdi::kWhite;
constexpr COLORREF kShadow = 0x808080;

std::vector<Layer> Plain(const StateColors& colors) {
    return {{.color = colors.text}};
}

std::vector<Layer> Embossed(const StateColors& /*colors*/) {
    return {{.shift = 1, .color = kLight}, {.color = kShadow}};
}

std::vector<Layer> Monochrome(const StateColors& /*colors*/) {
    return {{.color = kHighlight}};
}

std::vector<Layer> Dithered(const StateColors& colors) {
    return {{.color = colors.text, .dithered = true}};
}

// The shape that states in one colour draw: white is ground to them.
bool IsInShape(const IconPlanes& icon, int x, int y) {
    return !icon.IsTransparent(x, y) && icon.image.GetPixel(x, y) != gdi::kWhite;
}

void DrawLayer(Surface& ground, const IconPlanes& icon, const Layer& layer) {
    for (int y = 0; y < icon.Height(); ++y) {
        for (int x = 0; x < icon.Width(); ++x) {
            if (!IsInShape(icon, x, y) || (layer.dithered && (x + y) % 2 != 0)) continue;
            ground.SetPixel(x + layer.shift, y + layer.shift, layer.color);
        }
    }
}

template <auto kLayers>
void DrawShape(Surface& ground, const IconPlanes& icon, const StateColors& colors) {
    for (const Layer& layer : kLayers(colors))
        DrawLayer(ground, icon, layer);
}

void DrawNormal(Surface& ground, const IconPlanes& icon, const StateColors& /*colors*/) {
    gdi::DrawOver(ground, icon.Bounds(), icon);
}

COLORREF Average(COLORREF a, COLORREF b) {
    constexpr unsigned kOddBits = 0x010101;
    // Both halves, and one more where both channels are odd.
    return (a & ~kOddBits) / 2 + (b & ~kOddBits) / 2 + (a & b & kOddBits);
}

template <COLORREF StateColors::*kBlend>
void DrawBlended(Surface& ground, const IconPlanes& icon, const StateColors& colors) {
    for (int y = 0; y < icon.Height(); ++y) {
        for (int x = 0; x < icon.Width(); ++x) {
            if (icon.IsTransparent(x, y)) continue;
            const COLORREF blended = Average(icon.image.GetPixel(x, y), colors.*kBlend);
            ground.SetPixel(x, y, blended);
        }
    }
}

constexpr std::array kDrawStates{
    StateRow{{"Normal", "正常"}, Plain, DrawNormal},
    StateRow{{"Disabled", "不可用"}, Embossed, DrawShape<Embossed>},
    StateRow{{"Coloured", "彩色"}, Monochrome, DrawShape<Monochrome>},
    StateRow{{"Dithered", "颤动"}, Dithered, DrawShape<Dithered>},
    StateRow{{"Selected", "选中"}, Plain, DrawBlended<&StateColors::marked>},
    StateRow{{"Cut", "剪切"}, Plain, DrawBlended<&StateColors::window>},
};

}  // namespace

std::span<const StateRow> DrawStates() {
    return kDrawStates;
}

Surface DrawState(const StateRow& state, const IconPlanes& icon, const StateColors& colors) {
    Surface square(kStateSize, kStateSize, colors.ground);
    state.drawIcon(square, icon, colors);
    return square;
}

}  // namespace kestrel::tools
