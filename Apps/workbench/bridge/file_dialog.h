#pragma once
#include "Add-in/platform/interaction.h"
#include <QWidget>

namespace workbench {

enum class FileQuestion { Open, Save };

/// Implements ShowOpen and ShowSave. The caller asks whether to overwrite an existing file.
void askForFile(fernwick::CommonDialog& dialog, FileQuestion question, QWidget* parent);

} // namespace workbench
