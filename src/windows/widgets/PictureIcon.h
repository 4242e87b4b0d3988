#pragma once

#include <QIcon>

#include "platform/controls/ImageList.h"

namespace kestrel::widgets {

// A picture of the image list as an icon that is drawn when it is first shown, in whole steps of
// its size so that its pixels stay sharp; disabled it is grey and half see-through. A number that
// is not in the list gives an icon without picture. `pictures` must outlive the icon.
QIcon PictureIcon(const controls::ImageList& pictures, int number);

}  // namespace kestrel::widgets
