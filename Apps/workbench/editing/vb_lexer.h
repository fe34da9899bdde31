#pragma once
// Syntax highlighting of Visual Basic.
#include "Apps/workbench/editing/scintilla.h"
#include "Apps/workbench/options/code_look.h"

namespace workbench {

class VbLexer final : public QsciLexer {
public:
    explicit VbLexer(QObject* parent) : QsciLexer(parent) {}

    void showIn(const CodeLook& look);
    const char* language() const override { return "Visual Basic"; }
    /// The name of Scintilla's built-in lexer.
    const char* lexer() const override { return "vb"; }
    QString description(int style) const override;
    const char* keywords(int set) const override;
    bool caseSensitive() const override { return false; }
};

} // namespace workbench
