#pragma once
// The messages of the last build that are stored in a project's file.
#include "Apps/fernwick/output/report.h"
#include "Apps/fernwick/run/session.h"

namespace cli {

/// In stored order. `line` is 0, `codeLine` the stored one.
std::vector<Message> storedMessages(Session& session);

/// The same with physical lines. The compiler's messages have the columns and complete texts of the build that stored
/// them; the lines of the others are computed from the code window's.
std::vector<Message> messagesOfRun(Session& session);

} // namespace cli
