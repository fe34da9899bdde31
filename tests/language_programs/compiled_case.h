#pragma once
// The compiled code of small programs.
#include "Basic/utf16.h"
#include "Components/Image/image.h"
#include "Components/Image/verify/verify.h"
#include "Components/Language/foreign.h"
#include "Components/QLToolkit/check.h"
#include "Components/QLToolkit/source/res_file.h"
#include "tests/language_programs/program_case.h"
#include "tests/support/res_bytes.h"
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace language_programs {

/// The lines "TYPE NAME CONTENTS" as the resource file of a project. Texts have no type: "text NUMBER CONTENTS".
inline std::vector<image::Resource> resourcesOf(const Case& one) {
    test::ResBytes file;
    std::map<std::uint32_t, std::u16string> texts;
    for (const auto& line : one.resources) {
        std::istringstream words(line);
        std::string type, name, contents;
        words >> type >> name;
        std::getline(words >> std::ws, contents);
        if (type == "text")
            texts[static_cast<std::uint32_t>(std::stoul(name))] = basic::toUtf16(contents);
        else
            file.add(type, name, contents);
    }
    return qltoolkit::readResources(file.addTexts(texts).bytes());
}

/// The bytes of the image of a program. Throws why it cannot be compiled.
inline std::string imageOf(const Case& one, const std::vector<SourceFile>& files) {
    std::vector<std::unique_ptr<qltoolkit::SourceText>> owned;
    std::vector<const qltoolkit::SourceText*> sources;
    for (const auto& file : files)
        sources.push_back(owned.emplace_back(std::make_unique<qltoolkit::SourceText>(file.name, file.text)).get());
    qltoolkit::ProgramOptions options;
    options.projectName = "Project1";
    if (!one.library.empty()) options.libraries.push_back(language::foreignLibrary(one.library));
    auto made = qltoolkit::compileProject(sources, {}, options, {"Main", one.codePage, resourcesOf(one)});
    for (const auto& result : made.results)
        for (const auto& found : result.diagnostics)
            if (found.severity == qltoolkit::Severity::Error)
                throw std::runtime_error(found.file + ":" + std::to_string(found.line) + ": " + found.text);
    if (!made.code) throw std::runtime_error("no code for " + one.title);
    image::Image whole;
    whole.projectName = options.projectName;
    whole.code = std::move(*made.code);
    return image::encode(whole);
}

/// The code of an image, verified.
inline std::shared_ptr<const image::CodeImage> codeIn(const std::string& bytes) {
    auto code = std::make_shared<const image::CodeImage>(image::decode(bytes).code);
    if (const auto problem = image::verify(*code)) throw std::runtime_error("not verified: " + problem->text);
    return code;
}

} // namespace language_programs
