#pragma once
// What a program waits for while its host shows a question or handles events.
#include "Components/Tamarik/values/slot.h"
#include <cstdint>
#include <optional>
#include <string>

namespace tamarik {

struct Wait {
    enum class Kind : std::uint8_t {
        Message, ///< MsgBox; the answer is a button
        Input,   ///< InputBox; the answer is a text, or nothing for Cancel
        Events,  ///< DoEvents; any answer
        Pause,   ///< Sleep; any answer, after the time
    };
    Kind kind = Kind::Events;
    std::string text, title;       ///< UTF-8; the title is empty if the program gives none
    std::string usual;             ///< of an Input: the text that is already there
    std::int32_t style = 0;        ///< of a Message: the buttons and the icon, as the program gives them
    std::int32_t usualButton{};    ///< of a Message: the number of the button that Enter chooses
    std::int64_t milliseconds = 0; ///< of a Pause
};

struct Answer {
    std::int32_t button = 0;
    std::optional<std::string> text; ///< UTF-8
};

struct Session;

/// What a function of the runtime leaves in the session to wait. `finish` makes its result of the answer; without it the result
/// is 0.
struct WaitRequest {
    Wait wait;
    void (*finish)(Session&, const Answer&, Slot& result) = nullptr;
};

} // namespace tamarik
