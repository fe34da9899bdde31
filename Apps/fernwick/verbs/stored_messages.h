#pragma once
// The messages that a project's file keeps of its last build.
#include "Add-in/platform/host.h"
#include "Apps/fernwick/report.h"
#include "Components/QLToolkit/compiler.h"

namespace cli {

/// In stored order; `line` is 0, `codeLine` the stored one. Entries that can't be read are left out.
std::vector<Message> storedMessages(const basic::Ref<vbide::VBProject>& project);

/// The same with the physical lines and columns of the build that stored them.
std::vector<Message> messagesOfBuild(const basic::Ref<vbide::VBProject>& project, const compiler::BuildRecord& build);

} // namespace cli
