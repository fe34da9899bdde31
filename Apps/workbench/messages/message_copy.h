#pragma once
#include "Add-in/build/messages/udocCompileMsgs.h"
#include <QMimeData>
#include <memory>

namespace workbench {

/// Returns several messages for the clipboard, as lines of text and as a table for spreadsheets. `rows` are the
/// document's numbers, in the order of the copy.
std::unique_ptr<QMimeData> copyOf(const fernwick::udocCompileMsgs& document, const std::vector<std::int32_t>& rows);

} // namespace workbench
