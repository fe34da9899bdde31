#include "Components/Language/foreign.h"
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace {

using language::Group;
using language::GroupKind;
using language::Member;
using language::MemberKind;

std::string parameterText(const language::Parameter& parameter) {
    auto text = (parameter.paramArray ? "ParamArray " : "") + parameter.name + (parameter.isArray ? "()" : "");
    if (!parameter.type.empty()) text += " As " + parameter.type;
    if (!parameter.defaultValue.empty()) text += " = " + parameter.defaultValue;
    return parameter.optional ? "[" + text + "]" : text;
}

std::string declarationOf(const Member& member) {
    std::string parameters;
    for (const auto& parameter : member.parameters)
        parameters += (parameters.empty() ? "" : ", ") + parameterText(parameter);
    auto text = member.name + (parameters.empty() ? "" : "(" + parameters + ")");
    if (member.kind == MemberKind::Event) text = "Event " + text;
    return text + (member.type.empty() ? "" : " As " + member.type + (member.isArray ? "()" : ""));
}

std::string row(const std::string& name, const std::string& instead, const std::string& help) {
    return "| `" + name + "` | " + (instead.empty() ? "yes" : "no: " + instead) + " | " + help + " |\n";
}

std::string tableOf(const Group& group) {
    std::string text = "\n### " + group.name + "\n\n| member | on devices | help |\n|---|---|---|\n";
    for (const auto& member : group.members)
        if (!member.hidden) text += row(declarationOf(member), member.instead, member.help);
    return text;
}

bool hasProcedures(const Group& group) {
    return group.kind != GroupKind::Enum && group.members.front().kind != MemberKind::Constant;
}

std::string languagePart() {
    std::string text = "\n## VBA\n";
    for (const auto& group : language::languageLibrary().groups)
        if (hasProcedures(group)) text += tableOf(group);
    return text;
}

std::string formsPart() {
    std::string text = "\n## VB\n\n| class | on devices | help |\n|---|---|---|\n";
    for (const auto& group : language::formsLibrary().groups) text += row(group.name, group.instead, group.help);
    for (const auto* name : {"VB.Global", "VB.Form", "VB.App", "VB.Screen", "VB.Clipboard"})
        text += tableOf(*language::findClass(name));
    return text;
}

std::string foreignPart() {
    std::string text = "\n## Other libraries\n\n| library or control | on devices | help |\n|---|---|---|\n";
    for (const auto& library : language::foreignLibraries()) {
        text += row(library.name, library.instead, library.help);
        for (const auto& group : library.groups)
            if (group.control) text += row(library.name + "." + group.name, group.instead, group.help);
    }
    return text;
}

std::string pageOfTables() {
    return "# Libraries of the language\n\n"
           "What programs can call, and what devices have of it. Written from `Components/Language/tables` by\n"
           "`test_language_library` if `FERNWICK_APPROVE=1` is set.\n" +
           languagePart() + formsPart() + foreignPart();
}

const std::string kPage = FERNWICK_SOURCE_DIR "/docs/language-library.md";

TEST(LibraryPage, ShowsTheTables) {
    if (std::getenv("FERNWICK_APPROVE")) std::ofstream(kPage) << pageOfTables();
    std::ostringstream page;
    page << std::ifstream(kPage).rdbuf();
    EXPECT_TRUE(page.str() == pageOfTables()) << kPage << " is out of date: set FERNWICK_APPROVE=1";
}

} // namespace
