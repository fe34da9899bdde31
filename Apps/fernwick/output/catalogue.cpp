#include "Apps/fernwick/output/catalogue.h"
#include "Add-in/build/messages/build_messages.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLToolkit/source/messages.h"
#include <algorithm>
#include <cstdlib>

namespace cli {

namespace {

using fernwick::MessageInfo;

void addCompilerMessages(std::vector<MessageInfo>& to) {
    for (const auto& row : qltoolkit::allMessages())
        to.push_back({std::int32_t(row.message), row.severity == qltoolkit::Severity::Error, row.text, row.meaning,
                      row.example, row.remedy});
}

std::vector<MessageInfo> joinTables() {
    std::vector<MessageInfo> all;
    const auto add = [&](std::span<const MessageInfo> table) { all.insert(all.end(), table.begin(), table.end()); };
    addCompilerMessages(all);
    add(fernwick::buildMessages());
    for (const auto table : qlpipe::pipeMessages()) add(table);
    std::stable_sort(all.begin(), all.end(),
                     [](const MessageInfo& a, const MessageInfo& b) { return a.number < b.number; });
    return all;
}

std::int64_t distance(std::int32_t a, std::int32_t b) { return std::abs(std::int64_t{a} - b); }

} // namespace

std::span<const MessageInfo> catalogue() {
    static const auto all = joinTables();
    return all;
}

const MessageInfo* messageNumbered(std::int32_t number) {
    const auto all = catalogue();
    const auto found = std::find_if(all.begin(), all.end(), [&](const MessageInfo& m) { return m.number == number; });
    return found == all.end() ? nullptr : &*found;
}

std::vector<std::int32_t> numbersNear(std::int32_t number, std::size_t most) {
    std::vector<std::int32_t> numbers;
    for (const auto& message : catalogue()) numbers.push_back(message.number);
    std::stable_sort(numbers.begin(), numbers.end(),
                     [&](auto a, auto b) { return distance(a, number) < distance(b, number); });
    numbers.resize(std::min(numbers.size(), most));
    return numbers;
}

std::string_view kindOf(const MessageInfo& message) { return message.isError ? "error" : "warning"; }

} // namespace cli
