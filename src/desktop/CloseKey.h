#pragma once

#include <QShortcut>
#include <QWidget>

namespace kestrel::desktop {

// A key that closes the window, also where the window manager does not know it.
inline void AddCloseKey(QWidget& window, const QKeySequence& key) {
    QObject::connect(new QShortcut(key, &window), &QShortcut::activated, &window, &QWidget::close);
}

}  // namespace kestrel::desktop
