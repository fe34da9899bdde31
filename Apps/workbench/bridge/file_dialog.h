#pragma once
#include "Add-in/platform/interaction.h"
#include <QWidget>

namespace workbench {

enum class FileQuestion { Open, Save };

/// Interaction's ShowOpen and ShowSave. Whether an existing file may be replaced is the caller's question.
void askForFile(fernwick::CommonDialog& dialog, FileQuestion question, QWidget* parent);

} // namespace workbench
