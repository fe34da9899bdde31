#include "Apps/fernwick/exit_status.h"
#include "Apps/fernwick/installation.h"
#include "Apps/fernwick/json_output.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Basic/runtime_error.h"
#include "Host/registry/reg_exchange.h"
#include "Host/system/environment.h"
#include <fmt/format.h>
#include <fstream>
#include <iostream>
#include <iterator>

namespace cli {

namespace {

using host::RegInstruction;

constexpr std::string_view kRegHeader = "Windows Registry Editor Version 5.00\r\n\r\n";

host::RegistryStore openStore() {
    const host::Environment environment;
    return host::RegistryStore{host::usualRegistryPlaces(environment, installationBeside(programFolder()))};
}

/// Lines with the line ends of a terminal.
std::string withoutCarriageReturns(std::string text) {
    std::erase(text, '\r');
    return text;
}

/// The right side of a value's line: quoted, dword: or hex: as given, anything else becomes a text.
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

Json jsonOfInstructions(const std::vector<RegInstruction>& instructions) {
    Json values = Json::array();
    for (const auto& one : instructions) {
        if (one.kind != RegInstruction::Kind::SetValue) continue;
        auto lines = withoutCarriageReturns(host::writeRegText({one}, host::RegTextEncoding::Utf8));
        if (!lines.empty() && lines.back() == '\n') lines.pop_back();
        const auto equals = lines.rfind(one.name.empty() ? "\n@=" : "\"=");
        values.push_back({{"key", one.key},
                          {"name", one.name},
                          {"type", one.value.type},
                          {"value", lines.substr(equals + (one.name.empty() ? 3 : 2))}});
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
    auto text = withoutCarriageReturns(host::writeRegText(found, host::RegTextEncoding::Utf8));
    if (!withHeader) { // the key was given: its values are enough
        text.erase(0, text.find("]\n") == text.npos ? text.size() : text.find("]\n") + 2);
        while (!text.empty() && text.back() == '\n') text.pop_back();
        text += '\n';
    }
    console.out(text);
    return kGood;
}

int get(const Options& options, Console& console) {
    auto store = openStore();
    auto found = host::exportRegistry(store, options.operands[0]);
    const std::string key = found.empty() ? std::string() : found.front().key;
    std::erase_if(found, [&](const RegInstruction& one) {
        const bool otherName = options.operands.size() > 1 && one.name != options.operands[1];
        return one.kind != RegInstruction::Kind::SetValue || one.key != key || otherName;
    });
    if (found.empty() && options.operands.size() > 1) {
        console.err(fmt::format("fernwick: {}: no value {}", options.operands[0], options.operands[1]), Tone::Error);
        return kProjectErrors;
    }
    return printValues(options, console, found, false);
}

int change(const Options& options, Console& console, const std::vector<RegInstruction>& instructions,
           const std::string& origin) {
    if (options.dryRun) {
        console.out(withoutCarriageReturns(host::writeRegText(instructions, host::RegTextEncoding::Utf8)));
        return kGood;
    }
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

int importFile(const Options& options, Console& console) {
    const auto& path = options.operands[0];
    std::string bytes;
    if (path == "-") {
        bytes.assign(std::istreambuf_iterator<char>(std::cin), {});
    } else {
        std::ifstream file(path, std::ios::binary);
        if (!file) {
            console.err(fmt::format("fernwick: {}: cannot be read", path), Tone::Error);
            return kMachineTrouble;
        }
        bytes.assign(std::istreambuf_iterator<char>(file), {});
    }
    return change(options, console, host::readRegText(bytes, path), path);
}

struct RegistryAction {
    std::string_view name;
    std::size_t fewest, most;
    int (*run)(const Options&, Console&);
};

int exportKey(const Options& options, Console& console) {
    auto store = openStore();
    return printValues(options, console, host::exportRegistry(store, options.operands[0]), true);
}

constexpr std::array kRegistryActions{RegistryAction{"get", 1, 2, get}, RegistryAction{"set", 3, 3, set},
                                      RegistryAction{"export", 1, 1, exportKey},
                                      RegistryAction{"import", 1, 1, importFile}};

} // namespace

int runRegistry(const Options& options, Console& console) {
    for (const auto& action : kRegistryActions) {
        if (action.name != options.action) continue;
        if (options.operands.size() < action.fewest || options.operands.size() > action.most) {
            console.err(fmt::format("fernwick: registry {}: {} operands, see fernwick help registry", options.action,
                                    options.operands.size()),
                        Tone::Error);
            return kWrongUse;
        }
        try {
            return action.run(options, console);
        } catch (const basic::RuntimeError& error) {
            console.err(fmt::format("fernwick: {}", error.Description), Tone::Error);
            return error.Number == basic::kFileNotFound                                  ? kProjectErrors
                   : error.Number == 321 || error.Number == basic::kInvalidProcedureCall ? kWrongUse
                                                                                         : kMachineTrouble;
        }
    }
    return kWrongUse;
}

} // namespace cli
