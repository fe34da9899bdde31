#pragma once
// VB's run-time error numbers under names, and their standard texts.
#include <string_view>

namespace basic {

enum ErrorNumber : int {
    kReturnWithoutGoSub = 3,
    kInvalidProcedureCall = 5,
    kOverflow = 6,
    kOutOfMemory = 7,
    kSubscriptOutOfRange = 9,
    kDivisionByZero = 11,
    kTypeMismatch = 13,
    kFileNotFound = 53,
    kFileAlreadyOpen = 55,
    kDeviceIOError = 57,
    kFileAlreadyExists = 58,
    kDiskFull = 61,
    kInputPastEndOfFile = 62,
    kPermissionDenied = 70,
    kPathFileAccessError = 75,
    kPathNotFound = 76,
    kObjectVariableNotSet = 91,
    kInvalidPropertyValue = 380,
    kInvalidPropertyArrayIndex = 381,
    kFormAlreadyDisplayed = 400,
    kObjectRequired = 424,
    kCantCreateObject = 429,
    kPropertyOrMethodNotSupported = 438,
    kAutomationError = 440,
    kKeyAlreadyAssociated = 457,
    kControlNotFound = 730,
};

/// The standard text of a number; "Application-defined or object-defined error" for one that has none.
std::string_view standardDescription(int number) noexcept;

} // namespace basic
