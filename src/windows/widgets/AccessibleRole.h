#pragma once

#include <QAccessible>
#include <QWidget>

namespace kestrel::widgets {

// Tells screen readers what a widget is that draws itself. Before anybody has asked.
void SetRole(QWidget& widget, QAccessible::Role role);

}  // namespace kestrel::widgets
