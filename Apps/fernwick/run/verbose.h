#pragma once
// What --verbose shows of a run.
#include "Apps/fernwick/run/session.h"

namespace cli {

/// The project file and its components.
void showSources(Session& session);
/// Whether the image is current and, if not, what is newer.
void showStateOfImage(Session& session);
/// The files that the compiler read besides the sources.
void showOtherInputs(Session& session);

} // namespace cli
