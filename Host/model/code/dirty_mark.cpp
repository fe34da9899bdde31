#include "Host/model/code/dirty_mark.h"

namespace host {

bool DirtyMark::isSet(const std::optional<FileStamp>& asRead, const std::function<std::string()>& text) const {
    if (state_ == State::Edited) {
        const auto now = asRead ? text() : std::string();
        const bool isSame = asRead && now.size() == asRead->size && digestOf(now) == asRead->digest;
        state_ = isSame ? State::Clean : State::Different;
    }
    return state_ != State::Clean;
}

} // namespace host
