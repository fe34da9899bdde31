#pragma once
// Programs that tests write, and the places of a name in them. A | marks the name.
#include "Components/QLToolkit/insight/references.h"
#include <string>
#include <vector>

namespace test {

class ReferencedProgram {
public:
    ReferencedProgram() { input_.options.projectName = "Project1"; }

    ReferencedProgram& add(const std::string& file, std::string code) {
        const auto name = file.substr(0, file.find('.'));
        std::string head;
        if (file.ends_with(".cls")) head = "VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\nEND\n";
        if (file.ends_with(".frm")) head = "VERSION 5.00\nBegin VB.Form " + name + " \n" + controls + "End\n";
        if (file.ends_with(".ctl")) head = "VERSION 5.00\nBegin VB.UserControl " + name + " \nEnd\n";
        code = head + "Attribute VB_Name = \"" + name + "\"\n" + code;
        if (const auto mark = code.find('|'); mark != code.npos) {
            code.erase(mark, 1);
            source_ = texts_.size();
            pos_ = static_cast<qltoolkit::Pos>(mark);
        }
        texts_.push_back(code);
        input_.sources.push_back(
            std::make_shared<qltoolkit::SourceText>(file, code, basic::CodePage(basic::kUtf8Page)));
        return *this;
    }
    /// Marks another place, where this text with a | occurs first.
    ReferencedProgram& at(std::string text) {
        const auto mark = text.find('|');
        text.erase(mark, 1);
        for (source_ = 0; texts_[source_].find(text) == std::string::npos;) ++source_;
        pos_ = static_cast<qltoolkit::Pos>(texts_[source_].find(text) + mark);
        return *this;
    }

    /// Each place as "Module1 3" with the physical line; a star marks the declaration.
    std::string references(const qltoolkit::Following& following = {}) const {
        const qltoolkit::References found{input_, source_, pos_, following};
        std::string text;
        for (const auto& reference : found.all())
            text += (text.empty() ? "" : "; ") + described(reference.place) + (reference.isDeclaration ? "*" : "");
        return text;
    }

    std::string described(const qltoolkit::NamePlace& place) const {
        const auto& source = *input_.sources[place.source];
        return source.name().substr(0, source.name().find('.')) + " " + std::to_string(source.lineOf(place.pos));
    }
    const qltoolkit::ProgramInput& input() const { return input_; }
    std::size_t source() const { return source_; }
    qltoolkit::Pos pos() const { return pos_; }

    std::string controls; ///< of the forms that follow

private:
    qltoolkit::ProgramInput input_;
    std::vector<std::string> texts_;
    std::size_t source_ = 0;
    qltoolkit::Pos pos_ = 0;
};

} // namespace test
