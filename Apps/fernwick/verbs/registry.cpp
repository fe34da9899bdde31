#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/output/file_errors.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/run/user_store.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include "Host/files/text_file.h"
#include "Host/registry/reg_exchange.h"
#include <fmt/format.h>
#include <iostream>
#include <iterator>

namespace cli {

namespace {

using host::RegInstruction;

constexpr std::string_view kRegHeader = "Windows Registry Editor Version 5.00\r\n\r\n";

std::string withoutCarriageReturns(std::string text) {
    std::erase(text, '\r');
    return text;
}

/// Returns the right side of a value's line. Quoted text, dword: and hex: are used as given; anything else becomes a
/// string.
std::string rightSide(const std::string& value) {
    const auto begins = [&](std::string_view with) { return value.compare(0, with.size(), with) == 0; };
    if (begins("\"") || begins("dword:") || begins("hex:") || begins("hex(")) return value;
    std::string quoted = "\"";
    for (const char c : value) {
        if (c == '"' || c == '\\') quoted += '\\';
        quoted += c;
    }
    return quoted + "\"";
}

/// Returns only the lines of the values in a .reg file.
std::string linesOf(const std::vector<RegInstruction>& values) {
    auto text = withoutCarriageReturns(host::writeRegText(values, host::RegTextEncoding::Utf8));
    text.erase(0, text.find('\n') + 1);
    while (!text.empty() && text.back() == '\n') text.pop_back();
    return text;
}

/// Measures the value's quoted name, or "@", and the "=" after it.
std::size_t lengthOfLeftSide(std::string_view line) {
    std::size_t at = 1;
    if (line.front() == '"') {
        for (; at < line.size() && line[at] != '"'; ++at)
            if (line[at] == '\\') ++at;
        ++at;
    }
    return at + 1;
}

Json jsonOfInstructions(const std::vector<RegInstruction>& instructions) {
    Json values = Json::array();
    for (const auto& one : instructions) {
        if (one.kind != RegInstruction::Kind::SetValue) continue;
        const auto line = linesOf({one});
        values.push_back({{"key", one.key},
                          {"name", one.name},
                          {"type", one.value.type},
                          {"value", line.substr(lengthOfLeftSide(line))}});
    }
    return values;
}

int printValues(const Options& options, Console& console, const std::vector<RegInstruction>& found, bool withHeader) {
    if (options.format == Format::Json) {
        auto json = jsonResult("registry");
        json["values"] = jsonOfInstructions(found);
        console.out(dumpJson(json));
        return kGood;
    }
    if (withHeader)
        console.data(withoutCarriageReturns(host::writeRegText(found, host::RegTextEncoding::Utf8)));
    else if (!found.empty()) // the key is known, so its values are enough
        console.out(linesOf(found) + "\n");
    return kGood;
}

/// The text of a value: its characters, decimal digits, or hexadecimal bytes. Several texts have one line each.
std::string bareText(const host::RegValue& value) {
    auto data = value.data;
    if (value.type == fernwick::REG_DWORD && data.size() == sizeof(std::uint32_t)) {
        std::uint32_t number = 0;
        for (std::size_t i = data.size(); i-- > 0;) number = number << 8 | static_cast<unsigned char>(data[i]);
        return std::to_string(number);
    }
    if (host::isRegText(value.type)) {
        while (!data.empty() && data.back() == '\0') data.pop_back();
        std::replace(data.begin(), data.end(), '\0', '\n');
        return data;
    }
    std::string digits;
    for (const unsigned char byte : data) digits += fmt::format("{:02x}", byte);
    return digits;
}

int printBare(const std::vector<RegInstruction>& found, Console& console) {
    for (const auto& one : found) console.out(bareText(one.value) + "\n");
    return kGood;
}

int get(const Options& options, Console& console) {
    if (options.bare && options.operands.size() < 2) throw Refusal(kWrongUse, "registry get --bare expects KEY NAME");
    auto store = openStore();
    auto found = host::exportRegistry(store, options.operands[0]);
    const std::string key = found.empty() ? std::string() : found.front().key;
    std::erase_if(found, [&](const RegInstruction& one) {
        const bool otherName = options.operands.size() > 1 && !basic::equalNoCase(one.name, options.operands[1]);
        return one.kind != RegInstruction::Kind::SetValue || one.key != key || otherName;
    });
    if (found.empty() && options.operands.size() > 1)
        throw Refusal(kProjectErrors,
                      fmt::format("{}: there is no value {}", options.operands[0], options.operands[1]));
    if (options.bare && options.format == Format::Text) return printBare(found, console);
    return printValues(options, console, found, false);
}

int change(const Options& options, Console& console, const std::vector<RegInstruction>& instructions,
           const std::string& origin) {
    if (options.dryRun) return printValues(options, console, instructions, true);
    auto store = openStore();
    host::importRegistry(store, instructions, origin);
    return kGood;
}

int set(const Options& options, Console& console) {
    const auto& [key, name, value] = std::tie(options.operands[0], options.operands[1], options.operands[2]);
    const std::string left = name.empty() ? "@" : rightSide(name);
    const auto text = fmt::format("{}[{}]\r\n{}={}\r\n", kRegHeader, key, left, rightSide(value));
    return change(options, console, host::readRegText(text, "value"), "value");
}

/// Refusal 1 if there is no such key or value.
void requireStored(const std::string& key, const std::string* name) {
    auto store = openStore();
    const auto stored = host::exportRegistry(store, key);
    const auto isValue = [&](const RegInstruction& one) {
        return one.kind == RegInstruction::Kind::SetValue && one.key == stored.front().key &&
               basic::equalNoCase(one.name, *name);
    };
    if (name && std::none_of(stored.begin(), stored.end(), isValue))
        throw Refusal(kProjectErrors, fmt::format("{}: there is no value {}", key, *name));
}

/// A key with everything below it, or one value.
int remove(const Options& options, Console& console) {
    const auto& key = options.operands[0];
    const auto* name = options.operands.size() > 1 ? &options.operands[1] : nullptr;
    if (key.find('\\') == key.npos) throw Refusal(kWrongUse, key + ": a root key cannot be changed");
    requireStored(key, name);
    using Kind = RegInstruction::Kind;
    if (!name) return change(options, console, {{Kind::DeleteKey, key, {}, {}, 0}}, key);
    return change(options, console, {{Kind::MakeKey, key, {}, {}, 0}, {Kind::DeleteValue, key, *name, {}, 0}}, key);
}

int importFile(const Options& options, Console& console) {
    const auto& path = options.operands[0];
    std::string bytes;
    if (path == "-") {
        bytes.assign(std::istreambuf_iterator<char>(std::cin), {});
    } else {
        const auto err = basic::attempt([&] { bytes = host::readFile(path).bytes; });
        if (err.Number != 0) throw Refusal(statusOfNamedFile(path, err.Number), withFile(path, err.Description));
    }
    return change(options, console, host::readRegText(bytes, path), path);
}

struct RegistryAction {
    std::string_view name, operands;
    std::size_t fewest, most;
    int (*run)(const Options&, Console&);
};

int exportKey(const Options& options, Console& console) {
    auto store = openStore();
    const auto found = host::exportRegistry(store, options.operands[0]);
    if (!options.utf16 || options.format != Format::Text) return printValues(options, console, found, true);
    console.data(host::writeRegText(found, host::RegTextEncoding::Utf16));
    return kGood;
}

constexpr std::array kRegistryActions{
    RegistryAction{"get", "KEY [NAME]", 1, 2, get}, RegistryAction{"set", "KEY NAME VALUE", 3, 3, set},
    RegistryAction{"delete", "KEY [NAME]", 1, 2, remove}, RegistryAction{"export", "KEY", 1, 1, exportKey},
    RegistryAction{"import", "FILE", 1, 1, importFile}};

int statusOfRegistryError(int number) {
    switch (number) {
    case basic::kFileNotFound: return kProjectErrors;
    case basic::kInvalidFileFormat:
    case basic::kInvalidProcedureCall: return kWrongUse;
    default: return kMachineTrouble;
    }
}

} // namespace

int runRegistry(const Options& options, Console& console) {
    const auto action = std::find_if(kRegistryActions.begin(), kRegistryActions.end(),
                                     [&](const RegistryAction& one) { return one.name == options.action; });
    if (options.operands.size() < action->fewest || options.operands.size() > action->most)
        throw Refusal(kWrongUse, fmt::format("registry {} expects {}; see fernwick help registry", action->name,
                                             action->operands));
    try {
        return action->run(options, console);
    } catch (const basic::RuntimeError& error) {
        throw Refusal(statusOfRegistryError(error.Number), error.Description);
    }
}

} // namespace cli
