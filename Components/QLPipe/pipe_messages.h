#pragma once
// Everything that the pipes can say, in tables: numbers are stable, texts may be improved.
// To add a message: a name here, a row in pipe_messages.cpp at its place, a test that provokes it.
#include "Add-in/platform/message_info.h"
#include "Components/QLPipe/device_storage.h"
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <vector>

namespace qlpipe {

/// Errors, 20000 to 20999: 20000 in general, 20100 files of an application, 20200 devices, 20300 devices that are
/// reached by SSH (linux_handheld/ssh_messages.h), 20400 packages.
enum PipeError : std::int32_t {
    kLibraryMissing = 20001,
};

/// Added to a warning's number before users see it.
inline constexpr std::int32_t kWarningOffset = 3000;

/// The tables in the order of their numbers, which are those that users see: warnings stand with their offset.
std::vector<std::span<const fernwick::MessageInfo>> pipeMessages();

/// The text of a number as users see it, with "%1" and so on replaced. "" for a number that no table has.
std::string messageText(std::int32_t number, std::initializer_list<std::string> values = {});

/// An error of the tables, ready to be thrown.
TransferError transferError(std::int32_t number, std::initializer_list<std::string> values = {});

} // namespace qlpipe
