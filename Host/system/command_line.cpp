#include "Host/system/command_line.h"
#include <algorithm>

namespace host {
namespace {

constexpr std::string_view kArgumentBlanks = " \t";
constexpr std::size_t kLongestProgramName = 4096;

bool isArgumentBlank(char c) { return kArgumentBlanks.find(c) != kArgumentBlanks.npos; }

void skipArgumentBlanks(std::string_view& line) {
    line.remove_prefix(std::min(line.find_first_not_of(kArgumentBlanks), line.size()));
}

class ArgumentReader {
public:
    explicit ArgumentReader(std::string_view& line) : line_(line) {}

    std::string take() {
        for (;;) {
            takeBackslashes();
            if (line_.empty() || (!quoted_ && isArgumentBlank(line_.front()))) return std::move(argument_);
            if (line_.front() == '"')
                takeMark();
            else
                takeCharacter();
        }
    }

private:
    void takeCharacter() {
        argument_ += line_.front();
        line_.remove_prefix(1);
    }

    void takeBackslashes() {
        const auto count = std::min(line_.find_first_not_of('\\'), line_.size());
        line_.remove_prefix(count);
        const bool beforeMark = line_.starts_with('"');
        argument_.append(beforeMark ? count / 2 : count, '\\');
        if (beforeMark && count % 2 != 0) takeCharacter();
    }

    void takeMark() {
        line_.remove_prefix(1);
        if (quoted_ && line_.starts_with('"'))
            takeCharacter();
        else
            quoted_ = !quoted_;
    }

    std::string_view& line_;
    std::string argument_;
    bool quoted_ = false;
};

ProgramReading quotedProgram(std::string_view line) {
    const auto close = std::min(line.find('"', 1), line.size());
    return {std::string(line.substr(1, close - 1)), line.substr(std::min(close + 1, line.size()))};
}

} // namespace

std::vector<ProgramReading> programReadings(std::string_view line) {
    skipArgumentBlanks(line);
    if (line.empty()) return {};
    if (line.front() == '"') return {quotedProgram(line)};
    std::vector<ProgramReading> readings;
    const auto longest = std::min(line.size(), kLongestProgramName);
    for (std::size_t end = 1; end <= longest; ++end) {
        const bool endsHere = end == line.size() || isArgumentBlank(line[end]);
        if (endsHere && !isArgumentBlank(line[end - 1]))
            readings.push_back({std::string(line.substr(0, end)), line.substr(end)});
    }
    return readings;
}

std::vector<std::string> splitArguments(std::string_view line) {
    std::vector<std::string> words;
    for (skipArgumentBlanks(line); !line.empty(); skipArgumentBlanks(line))
        words.push_back(ArgumentReader(line).take());
    return words;
}

} // namespace host
