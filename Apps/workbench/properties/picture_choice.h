#pragma once
#include <QString>
#include <QWidget>
#include <optional>
#include <string>

namespace workbench {

/// Asks for a picture file, with a preview, in the folder where the last one was chosen. Returns its bytes; nothing if
/// the user cancels. Errors: as host::readFile; 481 for a picture that the property cannot have.
std::optional<std::string> askForPicture(const QString& property, QWidget* parent);

} // namespace workbench
