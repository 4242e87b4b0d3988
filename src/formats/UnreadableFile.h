#pragma once

#include "formats/ByteReader.h"
#include "platform/Result.h"

namespace kestrel::formats {

// Why a file of icons cannot be read, as numbers of errors. kInvalidPicture is for bytes of any
// other kind.
inline constexpr int kEmptyFile = 482;
inline constexpr int kDamagedPicture = 483;
inline constexpr int kPictureTooLarge = 484;
inline constexpr int kOs2Icon = 485;
inline constexpr int kWindows1Icon = 486;
inline constexpr int kProgramWithoutIcons = 487;
inline constexpr int kSeveralIcons = 488;

// The reason, in the language in force, why no image of this file could be read.
Error WhyUnreadable(Bytes file);

}  // namespace kestrel::formats
