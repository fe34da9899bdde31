// Conditional compilation constants.
#include "Add-in/project/modProjectHandler.h"
#include "Add-in/project/stored/project_texts.h"
#include "Basic/conversions.h"
#include "Basic/text.h"
#include "Basic/text_search.h"
#include <fmt/format.h>

namespace fernwick {

namespace {

constexpr std::string_view kConstantsKey = "CondComp=";

/// The value without its quotation marks.
std::string constantsOf(const std::string& line) {
    const auto key = basic::Len(kConstantsKey);
    return basic::Mid(line, key + 2, basic::Len(line) - key - 2);
}

bool isReserved(const std::string& name) {
    const auto capitals = basic::UCase(name);
    return capitals == "QUINLOFT" || capitals == "WIN32";
}

} // namespace

std::string modProjectHandler::GetConditionalCompilationArguments(const basic::Ref<vbide::VBProject>& project) {
    Procedure here{services_.errors, "modProjectHandler.GetConditionalCompilationArguments"};
    return here.value([&] {
        const auto file = services_.platform.files.OpenTextFile(project->FileName());
        while (!file->AtEndOfStream()) {
            const auto line = file->ReadLine();
            if (line.starts_with(kConstantsKey)) return constantsOf(line);
        }
        return std::string{};
    });
}

void modProjectHandler::SetConditionalCompilationArguments(const std::string& text, qltoolkit::Compiler& compiler) {
    using namespace fmt::literals;
    for (const auto& piece : basic::Split(text, ":")) {
        const auto divider = piece.find('=');
        if (divider == std::string::npos) continue;
        const auto name = basic::Trim(piece.substr(0, divider));
        const auto value = basic::CLng(piece.substr(divider + 1));
        if (isReserved(name))
            box(fmt::format(texts::kReservedConstant, "name"_a = name), vbExclamation);
        else
            compiler.AddConditionalConstant(name, value);
    }
}

} // namespace fernwick
