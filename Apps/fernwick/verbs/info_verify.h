#pragma once
// `info --verify`.
#include "Apps/fernwick/options/options.h"
#include "Apps/fernwick/output/console.h"
#include "Apps/fernwick/verbs/info_subject.h"
#include "Basic/code_page.h"

namespace cli {

/// Prints the verdict on each file and returns the exit status: 1 if one would change,
/// is missing or cannot be read.
int verifyRoundTrip(const InfoSubject& subject, const Options& options, Console& console, const basic::CodePage& usual);

} // namespace cli
