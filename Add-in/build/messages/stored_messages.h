#pragma once
// The messages of the last build, as stored in the project file. No other code reads this format.
#include "Add-in/platform/host_project.h"
#include <cstdint>
#include <string>
#include <vector>

namespace fernwick {

inline constexpr char kErrorsSection[] = "Quinloft Project Compile Errors";
inline constexpr char kNumErrors[] = "NumErrors";

/// The key of a message; the first one has the number 1.
std::string storedMessageKey(std::int32_t number);

struct StoredMessage {
    /// A tMessageType. An unknown stored type becomes that of the previous message, or 0 for the first.
    int type = 0;
    std::string fileName;
    /// The line of the code window; 0 for none.
    std::int32_t line = 0;
    std::string text;
    /// 0 in messages of earlier versions.
    std::int32_t errorNumber = 0;
};

/// A larger count is damaged, so that it does not block the IDE for hours.
inline constexpr std::int32_t kMostStoredMessages = 100'000;

/// 0 when the count cannot be read or is damaged.
std::int32_t storedMessageCount(const basic::Ref<vbide::VBProject>& project);
/// In stored order. Messages that cannot be read are left out.
std::vector<StoredMessage> storedMessages(const basic::Ref<vbide::VBProject>& project);

} // namespace fernwick
