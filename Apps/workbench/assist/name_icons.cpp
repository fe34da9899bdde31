#include "Apps/workbench/assist/name_icons.h"
#include "Apps/workbench/base/drawn_icons.h"
#include "Apps/workbench/editing/scintilla.h"

namespace workbench {

namespace {

/// By NameKind.
constexpr std::string_view kNames[] = {"KeywordName", "VariableName",  "ConstantName", "ProcedureName", "PropertyName",
                                       "EventName",   "CommandButton", "EnumName",     "TypeName",      "Module",
                                       "Class",       "Form",          "References",   "LabelName"};
constexpr int kIconSize = 16;

} // namespace

void registerNameIcons(QsciScintilla& text) {
    for (int kind = 0; const auto name : kNames) text.registerImage(kind++, drawnIcon(name).pixmap(kIconSize));
}

} // namespace workbench
