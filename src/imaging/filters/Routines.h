#pragma once

#include "imaging/filters/Filter.h"

// The filters; what each takes as Param stands in the table of commands.
namespace kestrel::filters {

// Filters that look at a pixel's neighbourhood. The four that work in place see what they have
// changed above and to the left; all leave pixels without the neighbours they ask for as they are.
void Sharpen(const FilterRun& run);
void BlurMore(const FilterRun& run);
void Blur(const FilterRun& run);
void EdgeEnhance(const FilterRun& run);
void Contour(const FilterRun& run);
void Emboss(const FilterRun& run);
void EmbossMore(const FilterRun& run);
void Engrave(const FilterRun& run);
void EngraveMore(const FilterRun& run);
void Relief(const FilterRun& run);
void ConnectedContour(const FilterRun& run);
void Dilate(const FilterRun& run);
void Erode(const FilterRun& run);
void Aqua(const FilterRun& run);

// Filters that look at the pixel alone, or at the whole picture's statistics.
void Negative(const FilterRun& run);
void GreyScale(const FilterRun& run);
void Brightness(const FilterRun& run);
void Saturation(const FilterRun& run);
void Contrast(const FilterRun& run);
void ContrastStretch(const FilterRun& run);
void Gamma(const FilterRun& run);
void SwapColors(const FilterRun& run);

// Filters that leave black and white.
void NearestColor(const FilterRun& run);
void EnhancedDiffusion(const FilterRun& run);
void OrderedDither(const FilterRun& run);
void FloydSteinberg(const FilterRun& run);
void Burke(const FilterRun& run);
void Stucki(const FilterRun& run);

// Filters that move pixels, average blocks or add noise.
void Diffuse(const FilterRun& run);
void Pixelize(const FilterRun& run);
void AddNoise(const FilterRun& run);

}  // namespace kestrel::filters
