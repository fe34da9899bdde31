#include "Apps/fernwick/programs/test_results.h"
#include "Apps/fernwick/programs/run_error_text.h"
#include <algorithm>
#include <fmt/format.h>

namespace cli {

namespace {

/// Text of an XML document, without characters that XML does not have.
std::string xmlText(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
        case '<': escaped += "&lt;"; break;
        case '>': escaped += "&gt;"; break;
        case '&': escaped += "&amp;"; break;
        case '"': escaped += "&quot;"; break;
        case '\n': escaped += "&#10;"; break;
        default: escaped += static_cast<unsigned char>(c) < ' ' ? '?' : c;
        }
    }
    return escaped;
}

std::string reasonOf(const TestResult& result, const ProjectProgram& program) {
    return result.error ? textOf(*result.error, program) : "The test was stopped by its budget.";
}

std::string junitCase(const TestResult& result, const ProjectProgram& program) {
    auto xml = fmt::format("  <testcase classname=\"{}\" name=\"{}\" time=\"{:.3f}\">\n", xmlText(result.module),
                           xmlText(result.name), result.seconds);
    if (!result.isGood()) {
        const auto reason = reasonOf(result, program);
        xml += fmt::format("    <failure message=\"{}\">{}</failure>\n", xmlText(reason.substr(0, reason.find('\n'))),
                           xmlText(reason));
    }
    if (!result.printed.empty()) xml += fmt::format("    <system-out>{}</system-out>\n", xmlText(result.printed));
    return xml + "  </testcase>\n";
}

} // namespace

std::string textOf(const TestResult& result, const ProjectProgram& program) {
    const auto name = fmt::format("{}.{}\n", result.module, result.name);
    if (result.isGood()) return "passed  " + name;
    auto text = "FAILED  " + name + result.printed;
    if (!text.ends_with('\n')) text += '\n';
    return text + reasonOf(result, program) + "\n";
}

Json jsonOf(const std::vector<TestResult>& results, const ProjectProgram& program) {
    Json json = Json::array();
    for (const auto& result : results)
        json.push_back({{"module", result.module},
                        {"name", result.name},
                        {"passed", result.isGood()},
                        {"seconds", result.seconds},
                        {"output", result.printed},
                        {"stopped", result.isStopped},
                        {"error", result.error ? jsonOf(*result.error, program) : Json(nullptr)}});
    return json;
}

std::string junitOf(const std::vector<TestResult>& results, const ProjectProgram& program) {
    const auto failures = std::count_if(results.begin(), results.end(), [](const auto& one) { return !one.isGood(); });
    auto xml = fmt::format("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuite name=\"{}\" tests=\"{}\" "
                           "failures=\"{}\">\n",
                           "fernwick", results.size(), failures);
    for (const auto& result : results) xml += junitCase(result, program);
    return xml + "</testsuite>\n";
}

} // namespace cli
