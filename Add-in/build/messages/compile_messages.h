#pragma once
// The messages window, as modCompileErrorManagement uses it.
#include "Add-in/platform/object.h"
#include <cstdint>
#include <string>

namespace fernwick {

/// Also the number of the picture that is shown beside the message.
enum tMessageType : int { ERROR_MSG = 101, WARNING_MSG = 102 };

/// The document object of the tool window "Fernwick Messages". Rows count from 1.
class CompileMessages : public Object {
public:
    virtual void SetStatusLabel(const std::string& newStatusLabel) = 0;
    virtual void SetStatusText(const std::string& newStatusText) = 0;
    /// `aLineNumber` and `errno_` are 0 for none. `MsgType` is a tMessageType, or 0 for a message whose stored
    /// type is neither.
    virtual void add(const std::string& aFileName, const std::string& aFiletitle, std::int32_t aLineNumber,
                     const std::string& aMessage, int MsgType, std::int32_t errno_, bool AddToTop) = 0;
    virtual void clearMessages() = 0;
    /// Selects and opens the first message that has a source line, whatever its type.
    virtual void gotoFirstError() = 0;
    /// Selects the row and opens its source line.
    virtual void gotoMessage(std::int32_t MsgIndex) = 0;
};

} // namespace fernwick
