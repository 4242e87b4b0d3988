#include "platform/qt/QtColorDialog.h"

#include <QColorDialog>

#include "platform/qt/Pictures.h"

namespace kestrel::qt {

Result<gdi::COLORREF> QtColorDialog::ShowColor(gdi::COLORREF current) {
    QColorDialog dialog(ToColor(current), owner_);
    // The desktop's own dialog speaks the desktop's language.
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    if (dialog.exec() != QDialog::Accepted) return Fail(kDialogCancelled, "Cancel was selected");
    return ToColorRef(dialog.selectedColor());
}

}  // namespace kestrel::qt
