#include "Apps/workbench/editing/margins.h"
#include "Apps/workbench/editing/scintilla.h"

namespace workbench {

int marginsWidth(const QsciScintilla& text) {
    int width = 0;
    for (int margin = 0; margin < text.margins(); ++margin) width += text.marginWidth(margin);
    return width;
}

} // namespace workbench
