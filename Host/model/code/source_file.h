#pragma once
// The source file of a component in memory. The designer part and the code are each parsed at first use.
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

    /// Returns the whole file; unchanged parts as they were read.
    std::string bytes() const;

    /// VB_Name, the identity of the component; "" if the file has none.
    std::string name() const;
    /// Writes VB_Name and the name in the designer's first line, if any. Error 5, without a change, if the code page
    /// lacks a character.
    void name(const std::string& name);

    /// The head as a tree. Edits of it are reflected in bytes().
    const std::shared_ptr<FormFile>& form();
    /// The class in the designer's first line ("VB.Form"), "" if there is none.
    std::string designerClass() const;
    /// Changes the name by which the head refers to its binary companion.
    void renameCompanion(const std::string& oldName, const std::string& newName);
    CodeText& code();
    /// Physical lines above line 1 of the code window.
    std::size_t headLines() const;

    const basic::CodePage& codePage() const { return codePage_; }
    /// False for a designer part that ends before its last End.
    bool isWhole() const { return whole_; }

private:
    basic::CodePage codePage_;
    LineEnd ownEnd_;
    std::string bytes_; // the head and the code; only the head once the code is parsed
    std::size_t attributesAt_ = 0, codeAt_ = 0;
    bool whole_ = true;
    std::shared_ptr<FormFile> form_;
    std::unique_ptr<CodeText> code_;
};

} // namespace host
