#include "Basic/error_numbers.h"

namespace basic {

std::string_view standardDescription(int number) noexcept {
    switch (number) {
    case kReturnWithoutGoSub: return "Return without GoSub";
    case kInvalidProcedureCall: return "Invalid procedure call or argument";
    case kOverflow: return "Overflow";
    case kOutOfMemory: return "Out of memory";
    case kSubscriptOutOfRange: return "Subscript out of range";
    case kDivisionByZero: return "Division by zero";
    case kTypeMismatch: return "Type mismatch";
    case kFileNotFound: return "File not found";
    case kFileAlreadyOpen: return "File already open";
    case kDeviceIOError: return "Device I/O error";
    case kFileAlreadyExists: return "File already exists";
    case kDiskFull: return "Disk full";
    case kInputPastEndOfFile: return "Input past end of file";
    case kPermissionDenied: return "Permission denied";
    case kPathFileAccessError: return "Path/File access error";
    case kPathNotFound: return "Path not found";
    case kObjectVariableNotSet: return "Object variable or With block variable not set";
    case kInvalidPropertyValue: return "Invalid property value";
    case kInvalidPropertyArrayIndex: return "Invalid property array index";
    case kFormAlreadyDisplayed: return "Form already displayed; can't show modally";
    case kObjectRequired: return "Object required";
    case kCantCreateObject: return "ActiveX component can't create object";
    case kPropertyOrMethodNotSupported: return "Object doesn't support this property or method";
    case kAutomationError: return "Automation error";
    case kKeyAlreadyAssociated: return "This key is already associated with an element of this collection";
    case kControlNotFound: return "Control not found";
    default: return "Application-defined or object-defined error";
    }
}

} // namespace basic
