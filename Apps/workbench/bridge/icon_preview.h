#pragma once
#include <QPixmap>
#include <QString>
#include <QWidget>

namespace workbench {

/// The largest image of an icon file, at most 48 pixels wide and high on a usual screen; empty for any other file.
QPixmap iconPreview(const QString& path, const QWidget& widget);

} // namespace workbench
