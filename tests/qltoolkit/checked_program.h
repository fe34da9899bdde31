#pragma once
// Checks programs that tests write, as projects of several modules.
#include "Components/QLToolkit/check.h"
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace test {

/// A project in memory.
class CheckedProgram {
public:
    CheckedProgram() { options.projectName = "Project1"; }

    /// The extension says what kind of module it is.
    CheckedProgram& add(const std::string& file, const std::string& code) {
        const auto name = file.substr(0, file.find('.'));
        std::string head;
        if (file.ends_with(".cls")) head = "VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\nEND\n";
        if (file.ends_with(".frm")) head = "VERSION 5.00\nBegin VB.Form " + name + " \n" + controls + "End\n";
        text(file, head + "Attribute VB_Name = \"" + name + "\"\n" + code);
        return *this;
    }

    /// Several modules: a line "--- Class1.cls" begins each; without one it is a standard module.
    CheckedProgram& addAll(std::string_view modules) {
        if (!modules.starts_with("--- ")) return add("Module1.bas", std::string(modules));
        while (!modules.empty()) {
            const auto head = modules.find('\n'), next = modules.find("\n--- ", head);
            const auto code =
                head == modules.npos ? "" : modules.substr(head + 1, next == modules.npos ? next : next - head);
            add(std::string(modules.substr(4, head - 4)), std::string(code));
            modules.remove_prefix(next == modules.npos ? modules.size() : next + 1);
        }
        return *this;
    }

    CheckedProgram& text(const std::string& file, std::string bytes) {
        sources_.push_back(std::make_unique<qltoolkit::SourceText>(file, std::move(bytes), page));
        return *this;
    }

    /// Returns the messages as "file:line:column number", where line 1 is the first of the code window.
    std::vector<std::string> messages() {
        const auto checked = results();
        std::vector<std::string> found;
        for (std::size_t i = 0; i < checked.size(); ++i)
            for (const auto& each : checked[i].diagnostics)
                found.push_back(place(*sources_[i], each, checked.size() > 1));
        return found;
    }

    /// Its code, which begins at Sub Main.
    qltoolkit::CompiledProject compiled() { return qltoolkit::compileProject(texts(), {}, options, {"Main", 1252}); }

    /// The first message as "file:line:column number" with the line of the file, or "".
    std::string firstPlace() {
        for (const auto& result : results())
            for (const auto& each : result.diagnostics)
                return each.file + ":" + std::to_string(each.line) + ":" + std::to_string(each.column) + " " +
                       std::to_string(each.number);
        return {};
    }

    std::vector<qltoolkit::CheckResult> results() { return qltoolkit::checkProject(texts(), {}, options); }

    qltoolkit::ProgramOptions options;
    std::string controls; ///< of the forms that follow
    basic::CodePage page = basic::CodePage::windows1252();

private:
    [[nodiscard]] std::vector<const qltoolkit::SourceText*> texts() const {
        std::vector<const qltoolkit::SourceText*> all;
        for (const auto& source : sources_) all.push_back(source.get());
        return all;
    }

    static std::string place(const qltoolkit::SourceText& source, const qltoolkit::Diagnostic& each, bool withFile) {
        const auto line = each.line == 0 ? 0 : each.line - source.codeBegin() + 1;
        return (withFile ? source.name() + ":" : "") + std::to_string(line) + ":" + std::to_string(each.column) + " " +
               std::to_string(each.number);
    }

    std::vector<std::unique_ptr<qltoolkit::SourceText>> sources_;
};

/// The messages about one standard module.
inline std::vector<std::string> messagesOf(const std::string& code) {
    return CheckedProgram{}.add("Module1.bas", code).messages();
}

} // namespace test
