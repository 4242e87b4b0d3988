#include "windows/widgets/AccessibleRole.h"

#include <QAccessibleWidget>
#include <QVariant>

namespace kestrel::widgets {

namespace {

constexpr const char* kRole = "accessibleRole";

QAccessibleInterface* NewAccessibleRole(const QString& /*className*/, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const QVariant role = widget == nullptr ? QVariant() : widget->property(kRole);
    if (!role.isValid()) return nullptr;
    return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
}

}  // namespace

void SetRole(QWidget& widget, QAccessible::Role role) {
    QAccessible::installFactory(NewAccessibleRole);
    widget.setProperty(kRole, static_cast<int>(role));
}

}  // namespace kestrel::widgets
