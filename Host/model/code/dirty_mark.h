#pragma once
// Whether an object has changes that its file lacks.
#include "Host/files/text_file.h"
#include <functional>
#include <optional>
#include <string>

namespace host {

/// Set by an edit, it counts only while the text differs from the file: undoing the edits clears it. Set explicitly, it
/// stays until it is cleared. The text is compared once after the last edit.
class DirtyMark {
public:
    explicit DirtyMark(bool dirty = false) : state_(dirty ? State::Marked : State::Clean) {}

    void set(bool dirty) { state_ = dirty ? State::Marked : State::Clean; }
    void edited() {
        if (state_ != State::Marked) state_ = State::Edited;
    }
    /// `asRead` is the stamp of the file when it was read or saved; none for an object without a file.
    bool isSet(const std::optional<FileStamp>& asRead, const std::function<std::string()>& text) const;

private:
    enum class State { Clean, Edited, Different, Marked };

    mutable State state_;
};

} // namespace host
