#pragma once
// JSON results. Each is an object that begins with the version of its schema.
#include "Apps/fernwick/output/console.h"
#include <nlohmann/json.hpp>

namespace cli {

using Json = nlohmann::ordered_json;

inline constexpr int kSchemaVersion = 1;

/// Ends with a newline. Invalid UTF-8 becomes U+FFFD, so the output is always valid JSON.
inline std::string dumpJson(const Json& json) {
    return json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) + "\n";
}

/// Returns the first members of a result.
inline Json jsonResult(const std::string& verb) { return {{"schemaVersion", kSchemaVersion}, {"verb", verb}}; }

} // namespace cli
