#pragma once
// The messages of a run, and those of the last build that are stored in a project's file.
#include "Apps/fernwick/output/report.h"
#include "Apps/fernwick/run/session.h"

namespace cli {

/// In stored order. `line` is 0, `codeLine` the stored one.
std::vector<Message> storedMessages(Session& session);

/// Those that the add-in added since it last cleared them, whatever the project file can store. Physical lines: the
/// compiler's messages have those of the build, with columns; the others are computed from the code window's.
std::vector<Message> messagesOfRun(Session& session);

} // namespace cli
