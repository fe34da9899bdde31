#pragma once
#include <string>

namespace qlpipe {

/// Appends the line of a host key to a known hosts file. Creates the file, for the user only, and its folder. Throws
/// TransferError; then the file is as it was.
void appendKnownHost(const std::string& path, const std::string& line);

} // namespace qlpipe
