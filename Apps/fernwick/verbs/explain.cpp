#include "Apps/common/wrapped_text.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/output/catalogue.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/output/message_pages.h"
#include "Apps/fernwick/output/rule_names.h"
#include "Apps/fernwick/verbs/verbs.h"
#include <fmt/format.h>

namespace cli {

namespace {

using fernwick::MessageInfo;

constexpr std::size_t kNearOnes = 3;
constexpr std::size_t kTextWidth = 78;

std::int32_t numberOf(const std::string& operand) {
    const auto number = ruleNumber(operand);
    if (!number) throw Refusal(kWrongUse, fmt::format("explain expects message numbers, not {}", operand));
    return *number;
}

std::string listed(const std::vector<std::int32_t>& numbers) {
    std::string text;
    for (std::size_t i = 0; i < numbers.size(); ++i)
        text += (i == 0 ? "" : i + 1 == numbers.size() ? " and " : ", ") + std::to_string(numbers[i]);
    return text;
}

const MessageInfo& messageOfOperand(const std::string& operand) {
    const auto number = numberOf(operand);
    const auto* message = messageNumbered(number);
    if (!message)
        throw Refusal(kWrongUse, fmt::format("there is no message {}; the nearest are {}", number,
                                             listed(numbersNear(number, kNearOnes))));
    return *message;
}

std::vector<MessageInfo> messagesAsked(const std::vector<std::string>& operands) {
    if (operands.empty()) return {catalogue().begin(), catalogue().end()};
    std::vector<MessageInfo> messages;
    for (const auto& operand : operands) messages.push_back(messageOfOperand(operand));
    return messages;
}

std::string indented(std::string_view lines) {
    std::string text = "  ";
    for (const char c : lines) text += c == '\n' ? std::string("\n  ") : std::string(1, c);
    return text + "\n";
}

std::string textOfMessage(const MessageInfo& message) {
    std::string text = fmt::format("{} {}: {}\n", message.number, kindOf(message), message.text);
    const auto part = [&](const char* heading, const std::string& lines) {
        if (!lines.empty()) text += fmt::format("\n{}\n{}", heading, indented(lines));
    };
    part("Meaning", apps::wrapped(message.meaning, kTextWidth));
    part("Example", std::string(message.example));
    part("Remedy", apps::wrapped(message.remedy, kTextWidth));
    return text;
}

Json jsonOfCatalogue(const std::vector<MessageInfo>& messages) {
    auto json = jsonResult("explain");
    json["messages"] = Json::array();
    for (const auto& one : messages)
        json["messages"].push_back({{"number", one.number},
                                    {"severity", kindOf(one)},
                                    {"text", one.text},
                                    {"meaning", one.meaning},
                                    {"example", one.example},
                                    {"remedy", one.remedy}});
    return json;
}

} // namespace

int runExplain(const Options& options, Console& console) {
    const auto messages = messagesAsked(options.operands);
    if (options.format == Format::Json) {
        console.out(dumpJson(jsonOfCatalogue(messages)));
    } else if (options.format == Format::Markdown) {
        console.out(markdownOf(messages));
    } else if (options.operands.empty()) {
        for (const auto& one : messages)
            console.out(fmt::format("{:>5}  {:<7}  {}\n", one.number, kindOf(one), one.text));
    } else {
        std::string gap;
        for (const auto& one : messages) console.out(std::exchange(gap, "\n") + textOfMessage(one));
    }
    return kGood;
}

} // namespace cli
