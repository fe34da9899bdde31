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
/// reached by SSH (in linux_handheld), 20400 packages.
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
};

/// Warnings as the events carry them, 100 to 899; 300 to 399 belong to devices that are reached by SSH.
enum PipeWarning : std::int32_t {
    kRuntimeNotInstalled = 100,
    kFileEmpty = 110,
    kFileLargerThanHeap = 111,
    kIconMissing = 112,
};

/// Added to a warning's number before users see it.
inline constexpr std::int32_t kWarningOffset = 3000;

/// The tables. Their numbers are those that users see: warnings stand with their offset.
std::vector<std::span<const fernwick::MessageInfo>> pipeMessages();

/// The text of a number as users see it, with "%1" and so on replaced. "" for a number that no table has.
std::string messageText(std::int32_t number, std::initializer_list<std::string> values = {});

/// An error of the tables, ready to be thrown.
TransferError transferError(std::int32_t number, std::initializer_list<std::string> values = {});

/// A number of bytes in words: "1,048,576 bytes".
std::string bytesInWords(std::int64_t bytes);

} // namespace qlpipe
