#pragma once
// The keys of the window's commands: those of their table, unless the user chose others.
#include "Apps/workbench/bars/bars_view.h"
#include "Apps/workbench/options/key_option.h"
#include "Host/model/host.h"
#include <QList>

namespace workbench {

/// The keys and the icon of a command.
CommandLook commandLookOf(int id);
/// The keys that the user gave to commands instead of the usual ones.
QList<QKeySequence> chosenKeys();
/// The commands that can have keys, with their texts in the host's menus.
std::vector<KeyOption> keyOptions(host::Host& host);

} // namespace workbench
