#include "Components/Image/image.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/output/file_errors.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/output/plural.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include "Components/Image/code/code_names.h"
#include "Components/Image/listing/disassemble.h"
#include "Components/Image/verify/verify.h"
#include "Host/files/path_lookup.h"
#include "Host/system/file_system.h"
#include <fmt/format.h>

namespace cli {

namespace {

/// An image file and what was found out about it.
struct OpenImage {
    std::string path;
    image::Image contents;
    std::vector<std::pair<std::string, std::size_t>> sections;
    std::string problem; ///< of the code; "" if it may run
};

OpenImage openImage(const std::string& given) {
    OpenImage opened;
    opened.path = host::absolutePath(given);
    try {
        const auto bytes = host::FileSystem{}.ReadBytes(opened.path);
        opened.contents = image::decode(bytes);
        opened.sections = image::sectionSizes(bytes);
    } catch (const basic::RuntimeError& error) {
        throw Refusal(statusOfNamedFile(opened.path, error.Number), withFile(opened.path, error.Description));
    }
    if (const auto problem = image::verify(opened.contents.code)) opened.problem = problem->text;
    return opened;
}

bool isNamed(const image::CodeImage& code, std::uint32_t number, const std::string& operand) {
    return basic::equalNoCase(image::procedureName(code, number), operand) ||
           basic::equalNoCase(image::textNumbered(code, code.procedures[number].name), operand);
}

std::vector<std::uint32_t> proceduresNamed(const image::CodeImage& code, const std::string& operand) {
    std::vector<std::uint32_t> found;
    for (std::uint32_t i = 0; i < code.procedures.size(); ++i)
        if (isNamed(code, i, operand)) found.push_back(i);
    if (found.empty())
        throw Refusal(kWrongUse, fmt::format("the image has no procedure {}", basic::printable(operand)));
    return found;
}

/// The procedures whose code is shown.
std::vector<std::uint32_t> proceduresAsked(const image::CodeImage& code, const Options& options) {
    std::vector<std::uint32_t> asked;
    if (!options.code) return asked;
    for (const auto& operand : options.operands)
        for (const auto number : proceduresNamed(code, operand)) asked.push_back(number);
    if (options.operands.empty())
        for (std::uint32_t i = 0; i < code.procedures.size(); ++i) asked.push_back(i);
    return asked;
}

std::string textOfContents(const OpenImage& opened) {
    const auto& contents = opened.contents;
    const auto shown = [](const std::string& text) { return basic::printable(text); };
    auto text = fmt::format(
        "{}\n  compiler {}, startup {}\n  {}, {}, {}\n", shown(contents.projectName), shown(contents.compilerVersion),
        contents.startup.str().empty() ? "none" : shown(contents.startup), plural(contents.forms.size(), "form"),
        plural(contents.modules.size(), "module"), plural(contents.code.procedures.size(), "procedure"));
    for (const auto& [name, size] : opened.sections) text += fmt::format("  {} {:>9}\n", shown(name), size);
    return text;
}

Json jsonOfImage(const OpenImage& opened, const std::vector<std::uint32_t>& asked) {
    const auto& contents = opened.contents;
    auto json = jsonResult("image");
    json.update({{"image", opened.path},
                 {"project", contents.projectName.str()},
                 {"compilerVersion", contents.compilerVersion.str()},
                 {"startup", contents.startup.str()},
                 {"forms", contents.forms.size()},
                 {"modules", contents.modules.size()}});
    json["sections"] = Json::array();
    for (const auto& [name, size] : opened.sections) json["sections"].push_back({{"name", name}, {"bytes", size}});
    json["procedures"] = Json::array();
    for (std::uint32_t i = 0; i < contents.code.procedures.size(); ++i)
        json["procedures"].push_back({{"name", image::procedureName(contents.code, i)},
                                      {"bytes", 4 * std::uint64_t{contents.code.procedures[i].words}}});
    for (const auto number : asked) json["procedures"][number]["code"] = image::disassemble(contents.code, number);
    if (!opened.problem.empty()) json["problem"] = opened.problem;
    return json;
}

void showImage(const OpenImage& opened, const std::vector<std::uint32_t>& asked, const Options& options,
               Console& console) {
    if (options.format == Format::Json) return console.out(dumpJson(jsonOfImage(opened, asked)));
    if (!options.code) return console.out(textOfContents(opened));
    std::string gap;
    for (const auto number : asked)
        console.out(std::exchange(gap, "\n") + image::disassemble(opened.contents.code, number));
}

} // namespace

int runImage(const Options& options, Console& console) {
    const auto opened = openImage(options.project);
    showImage(opened, proceduresAsked(opened.contents.code, options), options, console);
    if (opened.problem.empty()) return kGood;
    console.err(fmt::format("fernwick: {}: the code cannot be run: {}", opened.path, opened.problem), Tone::Error);
    return kProjectErrors;
}

} // namespace cli
