// Each small program prints what the language prescribes.
#include "Components/Tamarik/functions/standard_natives.h"
#include "Components/Tamarik/machine/run_without_window.h"
#include "tests/language_programs/compiled_case.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <sstream>

namespace language_programs {

namespace {

/// Enough for every case, and soon over for one that does not end.
constexpr std::int64_t kBudget = 20'000'000;

std::string ending(const tamarik::Machine& machine, tamarik::RunState state, const std::vector<SourceFile>& files) {
    if (!machine.error()) return state == tamarik::RunState::Finished ? "" : "does not end\n";
    const auto& error = *machine.error();
    std::string text = "error " + std::to_string(error.number);
    if (error.callers.empty()) return text;
    const auto& place = error.callers.front();
    for (const auto& file : files)
        if (file.name == place.file) text += " line " + std::to_string(place.line - file.linesBefore);
    return text;
}

std::string outputOf(const std::shared_ptr<const tamarik::Program>& program, const std::vector<SourceFile>& files,
                     bool usesSwitch) {
    std::string printed;
    tamarik::MachineOptions options;
    options.usesSwitch = usesSwitch;
    options.output.print = options.output.error = [&](std::string_view text) { printed += text; };
    tamarik::Machine machine(program, tamarik::standardNatives(), options);
    machine.start();
    const auto state = tamarik::runWithoutWindow(machine, kBudget);
    if (!printed.empty() && !printed.ends_with('\n')) printed += '\n';
    return printed + ending(machine, state, files);
}

/// What a case does, without blanks at the ends of lines and of the output.
std::string withoutLastBlanks(const std::string& text) {
    std::string result;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) result += trimmed(line) + "\n";
    return trimmed(result);
}

std::string outcomeOf(const Case& one) {
    try {
        const auto files = filesOf(one);
        const auto program = std::make_shared<const tamarik::Program>(codeIn(imageOf(one, files)), "Project1");
        const auto output = withoutLastBlanks(outputOf(program, files, false));
        EXPECT_EQ(output, withoutLastBlanks(outputOf(program, files, true))) << "by the portable interpreter";
        return output;
    } catch (const std::exception& error) { return std::string("refused: ") + error.what(); }
}

class Programs : public testing::TestWithParam<Case> {};

std::string nameOf(const testing::TestParamInfo<Case>& info) {
    std::string name = info.param.file + "_" + info.param.title;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
    return name;
}

} // namespace

TEST_P(Programs, Print) {
    const auto outcome = outcomeOf(GetParam());
    const auto expected = withoutLastBlanks(GetParam().expected);
    if (GetParam().isPending())
        EXPECT_NE(outcome, expected) << "works now: remove the mark \"pending: " << GetParam().pending << "\"";
    else
        EXPECT_EQ(outcome, expected);
}

INSTANTIATE_TEST_SUITE_P(Language, Programs, testing::ValuesIn(readAllCases()), nameOf);

TEST(ProgramCases, AreManyAndHaveSources) {
    const auto cases = readAllCases();
    const auto unsourced = std::count_if(cases.begin(), cases.end(), [](const Case& one) { return !one.hasSource(); });
    EXPECT_GE(cases.size(), 700U);
    EXPECT_LE(unsourced * 20, std::ssize(cases));
}

TEST(ProgramCases, HaveUniqueTitlesAndCode) {
    std::set<std::pair<std::string, std::string>> titles;
    for (const auto& one : readAllCases()) {
        EXPECT_TRUE(titles.emplace(one.file, one.title).second) << one.file << ": " << one.title;
        EXPECT_FALSE(one.code.empty() || one.expected.empty()) << one.title;
    }
}

} // namespace language_programs
