#pragma once
// Asks what the editor asks, in programs that tests write. A | is the cursor.
#include "Components/QLToolkit/insight/completion.h"
#include "Components/QLToolkit/insight/meaning.h"
#include "Components/QLToolkit/insight/procedure_text.h"
#include "Components/QLToolkit/insight/signature.h"
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace test {

class InsightProgram {
public:
    InsightProgram() { options.projectName = "Project1"; }

    InsightProgram& add(const std::string& file, const std::string& code) {
        const auto name = file.substr(0, file.find('.'));
        std::string head;
        if (file.ends_with(".cls")) head = "VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\nEND\n";
        if (file.ends_with(".frm")) head = "VERSION 5.00\nBegin VB.Form " + name + " \n" + controls + "End\n";
        sources_.push_back(std::make_shared<qltoolkit::SourceText>(
            file, head + "Attribute VB_Name = \"" + name + "\"\n" + code, basic::CodePage(basic::kUtf8Page)));
        return *this;
    }

    /// The offer in the module that was added first, whose present text this is.
    qltoolkit::Offer offer(const std::string& text, qltoolkit::Wanted wanted = qltoolkit::Wanted::All) {
        const auto typed = at(text);
        return qltoolkit::namesAt(snapshot(), typed.place, typed.rest, wanted);
    }
    /// The names of the offer.
    std::string names(const std::string& text, qltoolkit::Wanted wanted = qltoolkit::Wanted::All) {
        return joined(offer(text, wanted).names);
    }
    bool offers(const std::string& text, const std::string& name) {
        const auto found = offer(text).names;
        return std::any_of(found.begin(), found.end(), [&](const auto& each) { return each.name == name; });
    }
    /// The signature with the present parameter in **.
    std::string call(const std::string& text) {
        auto found = qltoolkit::callAt(snapshot(), at(text).place);
        if (!found) return {};
        found->text.insert(found->parameterEnd, "*").insert(found->parameterBegin, "*");
        return found->text;
    }
    std::string info(const std::string& text) {
        (void)at(text);
        const auto around = qltoolkit::procedureAround(text_, cursor_);
        return qltoolkit::quickInfo(snapshot(), 0,
                                    std::string_view(text_).substr(around.begin, around.end - around.begin),
                                    cursor_ - around.begin);
    }

    qltoolkit::ProgramInput input() const { return {sources_, {}, options}; }
    qltoolkit::Snapshot& snapshot() {
        if (!snapshot_)
            snapshot_ = std::make_unique<qltoolkit::Snapshot>(sources_, qltoolkit::ConditionalConstants{}, options);
        return *snapshot_;
    }

    qltoolkit::ProgramOptions options;
    std::string controls; ///< of the forms that follow

private:
    struct Typed {
        qltoolkit::CodePlace place;
        std::string_view rest;
    };
    Typed at(const std::string& text) {
        cursor_ = text.find('|');
        text_ = std::string(text).erase(cursor_, 1);
        const auto around = qltoolkit::procedureAround(text_, cursor_);
        const std::string_view all = text_;
        return {{0, all.substr(around.begin, cursor_ - around.begin)}, all.substr(cursor_, around.end - cursor_)};
    }
    static std::string joined(const std::vector<qltoolkit::OfferedName>& names) {
        std::string text;
        for (const auto& each : names) text += (text.empty() ? "" : " ") + each.name;
        return text;
    }

    qltoolkit::Snapshot::Sources sources_;
    std::unique_ptr<qltoolkit::Snapshot> snapshot_;
    std::string text_;
    std::size_t cursor_ = 0;
};

} // namespace test
