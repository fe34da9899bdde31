#pragma once
// The messages that a project's file keeps of its last build.
#include "Add-in/platform/host.h"
#include "Apps/fernwick/output/report.h"
#include "Components/QLToolkit/compiler.h"

namespace cli {

/// In stored order; `line` is 0, `codeLine` the stored one. Entries that can't be read are left out.
std::vector<Message> storedMessages(const basic::Ref<vbide::VBProject>& project);

/// The same with physical lines: columns too and whole texts of the compiler's messages, from the build that stored
/// them; those of the others are found from the code window's line.
std::vector<Message> messagesOfRun(const basic::Ref<vbide::VBProject>& project, const qltoolkit::BuildRecord& build);

} // namespace cli
