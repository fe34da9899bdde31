#pragma once
// JSON results. Each is an object that begins with the version of its schema.
#include "Apps/fernwick/output/console.h"
#include "Basic/printable.h"
#include <nlohmann/json.hpp>

namespace cli {

using Json = nlohmann::ordered_json;

inline constexpr int kSchemaVersion = 1;

/// Ends with a newline. Invalid UTF-8 becomes U+FFFD, so the output is always valid JSON. Characters that a terminal would
/// obey are escaped as in JSON.
inline std::string dumpJson(const Json& json) {
    return basic::printable(json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace), "\n") + "\n";
}

/// Returns the first members of a result.
inline Json jsonResult(const std::string& verb) { return {{"schemaVersion", kSchemaVersion}, {"verb", verb}}; }

} // namespace cli
