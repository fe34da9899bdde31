#pragma once
// The errors of connections to Linux handhelds.
// To add a message: a name and number here, a row in ssh_messages.cpp, and a test that triggers it.
#include "Add-in/platform/message_info.h"
#include "Components/QLPipe/base/device_storage.h"
#include "Components/QLPipe/base/message_values.h"
#include <span>
#include <string>
#include <string_view>

namespace qlpipe {

/// Errors from 20300 to 20399: settings, the connection, the device's key, the user's keys, the transfer, files.
enum class SshMessage : std::int32_t {
    HostNotSet = 20300,
    SettingInvalid = 20301,
    HostNotFound = 20302,
    NotConnected = 20303,
    NoAnswer = 20304,
    HandshakeFailed = 20305,

    HostKeyUnknown = 20310,
    HostKeyChanged = 20311,
    KnownHostsUnreadable = 20312,
    KnownHostsNotWritten = 20313,

    KeyFileMissing = 20320,
    KeyFileUnusable = 20321,
    KeyNeedsAgent = 20322,
    KeysRefused = 20323,
    KeyNotEnough = 20324,

    ConnectionLost = 20330,
    Stalled = 20331,
    TransferNotOffered = 20332,
    AnswerInvalid = 20333,

    AccessDenied = 20340,
    DeviceFull = 20341,
    OperationFailed = 20342,
    NotThere = 20343,
    LinkRefused = 20344,
    NameTaken = 20345,
    NotFolder = 20346,
    FileTooLarge = 20347,
};

/// Returns all rows by ascending number.
[[nodiscard]] std::span<const fernwick::MessageInfo> sshMessages();

/// Returns the error of a row with its values filled in.
[[nodiscard]] TransferError sshError(SshMessage message, MessageValues values);

/// Quotes a path for a shell command that is shown to the user.
[[nodiscard]] std::string shellWord(const std::string& path);

/// Truncates a long text from a device for a message.
[[nodiscard]] std::string saidByDevice(std::string_view text);

} // namespace qlpipe
