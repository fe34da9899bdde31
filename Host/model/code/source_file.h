#pragma once
// The source file of one component in memory: its designer part and its code, each taken apart at first use.
#include "Basic/code_page.h"
#include "Host/files/code_file.h"
#include "Host/files/form_file.h"
#include "Host/files/text_file.h"
#include <memory>
#include <string>
#include <string_view>

namespace host {

class SourceFile {
public:
    SourceFile(std::string bytes, basic::CodePage codePage);

    /// The whole file; the bytes that were read where nothing was changed.
    std::string bytes() const;

    /// VB_Name, the component's identity; "" where the file tells none.
    std::string name() const;
    /// Writes VB_Name and, where there is one, the name in the designer's first line. Error 5, and nothing changed: a
    /// character that the code page lacks.
    void name(const std::string& name);

    /// The head as a tree. Edits in it show in bytes().
    const std::shared_ptr<FormFile>& form();
    /// From now on the head is this tree: a designer holds its form itself.
    void form(std::shared_ptr<FormFile> held) { form_ = std::move(held); }
    /// The class in the designer's first line ("VB.Form"), "" where there is none.
    std::string designerClass() const;
    /// The head refers to its binary companion by this name instead of that one.
    void renameCompanion(const std::string& oldName, const std::string& newName);
    CodeText& code();
    /// Physical lines above line 1 of the code window.
    std::size_t headLines() const;

    const basic::CodePage& codePage() const { return codePage_; }
    /// False for a designer part that ends before its last End, and for bytes that are no source text.
    bool isWhole() const { return whole_; }

private:
    basic::CodePage codePage_;
    LineEnd ownEnd_;
    std::string bytes_; // until code is taken apart: the head and the code; then the head alone
    std::size_t attributesAt_ = 0, codeAt_ = 0;
    bool whole_ = true;
    std::shared_ptr<FormFile> form_;
    std::unique_ptr<CodeText> code_;
};

} // namespace host
