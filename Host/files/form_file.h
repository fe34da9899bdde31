#pragma once
// A form or class file: .frm .ctl .pag .dsr .dob, and the smaller head of .cls and .bas.
#include "Host/files/form_block.h"
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// A problem in a line of the head. The rest of the file remains usable.
struct FormProblem {
    std::size_t line = 0; ///< physical line, from 1
    std::string text;
};

/// An `Object =` line of a form: "{guid}#version#lcid" and the file, or "*\Aproject" with no second text.
struct ObjectLine {
    std::string library, file;
};

/// The head of the file as a tree over its lines, and the code after it as text. Unedited lines are written back byte
/// for byte, even if they are faulty. The head is the VERSION line, Object lines, one balanced Begin/End block and the
/// run of lines that begin with "Attribute " in the first column; the next line is line 1 of the code window. All parts
/// of the head are optional.
class FormFile {
public:
    /// Blocks nested deeper than this are kept as plain lines and reported.
    static constexpr std::size_t kDeepest = 200;
    /// Problems beyond this number are not listed.
    static constexpr std::size_t kMostProblems = 1000;

    /// Parses a whole file in UTF-8, in linear time. Never fails.
    static FormFile parse(std::string_view text);

    /// Returns the whole file.
    std::string text() const { return head() + code_; }
    std::string head() const;

    const std::string& code() const { return code_; }
    void code(std::string text) { code_ = std::move(text); }
    /// The physical line, from 1, of line 1 of the code window.
    std::size_t firstCodeLine() const;

    /// Returns the text after "VERSION": "5.00" or "1.0 CLASS"; "" without such a line.
    std::string version() const;
    std::vector<ObjectLine> objects() const;
    /// Adds an Object line unless there is one of the same library.
    void addObject(const ObjectLine& line);
    /// The lines before the form's Begin.
    const std::vector<std::string>& linesBefore() const { return before_; }
    void linesBefore(std::vector<std::string> lines) { before_ = std::move(lines); }
    /// The physical line, from 1, of the form's Begin.
    std::size_t rootLine() const { return before_.size() + 1; }
    /// The form itself; null if the file has no Begin.
    const std::shared_ptr<FormBlock>& root() const { return root_; }

    /// The literal of a file attribute such as "VB_Name".
    std::optional<std::string> attribute(std::string_view name) const;
    /// Writes an attribute in its line, or as a new line after the others. Returns true if the text changed.
    bool attribute(std::string_view name, std::string_view literal);

    const std::vector<FormProblem>& problems() const { return problems_; }

private:
    friend class FormReader;
    std::vector<std::string> before_; // VERSION, Object and unknown lines
    std::shared_ptr<FormBlock> root_;
    std::vector<std::string> between_; // lines after a superfluous End
    std::vector<std::string> attributes_;
    std::string code_;
    std::vector<FormProblem> problems_;
};

} // namespace host
