#pragma once
#include "Add-in/build/messages/udocCompileMsgs.h"
#include <QMimeData>
#include <memory>

namespace workbench {

/// Several messages for the clipboard: lines of text as a copy of one has, and a table for spreadsheets. `rows` are the
/// document's numbers, in the order of the copy.
std::unique_ptr<QMimeData> copyOf(const fernwick::udocCompileMsgs& document, const std::vector<std::int32_t>& rows);

} // namespace workbench
