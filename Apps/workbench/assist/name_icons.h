#pragma once
#include "Components/QLToolkit/insight/completion.h"

class QsciScintilla;

namespace workbench {

/// Gives the list of names its icons, whose numbers are those of NameKind.
void registerNameIcons(QsciScintilla& text);

} // namespace workbench
