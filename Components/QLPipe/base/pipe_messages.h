#pragma once
// All messages of the pipes. Numbers are stable, texts may be improved.
// To add a message: a name here, a row in pipe_messages.cpp, and a test that triggers it.
#include "Add-in/platform/message_info.h"
#include "Components/QLPipe/base/device_storage.h"
#include "Components/QLPipe/base/message_values.h"
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace qlpipe {

/// Errors, 20000 to 20999. 20000: general, 20100: files of an application, 20200: devices, 20300: devices reached by
/// SSH (in linux_handheld), 20400: packages.
enum PipeError : std::int32_t {
    kLibraryMissing = 20001,

    kNoImage = 20100,
    kImageDamaged = 20101,
    kImageOfOtherCompiler = 20102,
    kImageTooLarge = 20103,
    kNameTooLong = 20104,
    kNameTwice = 20105,
    kKindNotTaken = 20106,
    kFileTooLarge = 20107,
    kTooLargeTogether = 20108,
    kUnsafeName = 20109,
    kFileMissing = 20110,
    kFileUnreadable = 20111,
    kFileChanged = 20112,
    kListTooLong = 20113,
    kSettingRefused = 20114,

    kDeviceNotServed = 20200,
    kDeviceBusy = 20201,
    kDeviceFull = 20202,
    kDeviceDiskFull = 20203,
    kStorageFailed = 20204,
    kStorageLink = 20205,
    kStorageFileTooLarge = 20206,
    kRuntimeNotShipped = 20210,
    kRuntimeUnusable = 20211,

    kPackageNotWritten = 20400,
    kPackageUnreadable = 20401,
    kPackageManifest = 20402,
    kPackageVersion = 20403,
    kPackageEntryMissing = 20404,
    kPackageEntryExtra = 20405,
    kPackageEntryChanged = 20406,
    kPackageUnsafeName = 20407,
    kPackageOfOtherDevice = 20408,
    kPackageDeviceUnknown = 20409,
    kPackageMemory = 20410,
};

/// Warnings, with the numbers of events: 100 to 899. 300 to 399 are reserved for devices reached by SSH.
enum PipeWarning : std::int32_t {
    kRuntimeNotInstalled = 100,
    kFileEmpty = 110,
    kFileLargerThanHeap = 111,
    kIconMissing = 112,
    kCreatorInUse = 113,

    kProjectSettingsIgnored = 300,
};

/// Added to a warning's number when it is shown.
inline constexpr std::int32_t kWarningOffset = 3000;

/// Returns the tables. Their numbers are those shown to users, that is, with the offset for warnings.
std::vector<std::span<const fernwick::MessageInfo>> pipeMessages();

/// Returns the text of a number as users see it, with its values filled in, or "" for an unknown number.
std::string messageText(std::int32_t number, MessageValues values = {});

/// Returns the error with this number, to be thrown.
TransferError transferError(std::int32_t number, MessageValues values = {});

/// Returns a number of bytes as text: "1,048,576 bytes".
std::string bytesInWords(std::int64_t bytes);

} // namespace qlpipe
