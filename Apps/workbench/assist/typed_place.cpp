#include "Apps/workbench/assist/typed_place.h"
#include "Apps/workbench/editing/scintilla.h"
#include "Components/QLToolkit/insight/procedure_text.h"
#include "Components/QLToolkit/insight/typed_statement.h"

namespace workbench {

int cursorPosition(const QsciScintilla& text) { return int(text.SendScintilla(QsciScintillaBase::SCI_GETCURRENTPOS)); }

TypedPlace::TypedPlace(const QsciScintilla& text) : TypedPlace(text, cursorPosition(text)) {}

// The editor's own bytes are read in place, because copying a long module would take longer than a key may.
TypedPlace::TypedPlace(const QsciScintilla& text, int position) {
    const auto length = std::size_t(text.SendScintilla(QsciScintillaBase::SCI_GETLENGTH));
    const auto* const bytes =
        static_cast<const char*>(text.SendScintillaPtrResult(QsciScintillaBase::SCI_GETCHARACTERPOINTER));
    const std::string_view all(bytes, length);
    const auto around = qltoolkit::procedureAround(all, std::size_t(position));
    text_ = all.substr(around.begin, around.end - around.begin);
    cursor_ = std::size_t(position) - around.begin;
}

bool TypedPlace::isInText() const {
    return qltoolkit::TypedStatement(std::string_view(text_).substr(0, cursor_)).isInText();
}

} // namespace workbench
