#pragma once
// Finds one text in others, in linear time. The unit of a text is a byte or a UTF-16 unit.
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace basic {

/// The text to be found, which must outlive it and not be empty.
template <class Unit>
class Needle {
public:
    using View = std::basic_string_view<Unit>;

    explicit Needle(View what) : what_(what) {
        if (what_.size() > kShort) borders_ = bordersOf(what_);
    }

    /// The first occurrence at or after `from`; npos for none.
    std::size_t find(View text, std::size_t from) const {
        return borders_.empty() ? text.find(what_, from) : findByBorders(text, what_, borders_, from);
    }

    /// The last occurrence; npos for none.
    std::size_t findLast(View text) const {
        if (borders_.empty()) return text.rfind(what_);
        const std::basic_string<Unit> reversed(text.rbegin(), text.rend()), what(what_.rbegin(), what_.rend());
        const std::size_t found = findByBorders(reversed, what, bordersOf(what), 0);
        return found == View::npos ? found : text.size() - found - what.size();
    }

private:
    // Up to this size a plain search, with the product of both sizes as its worst case, is fast enough.
    static constexpr std::size_t kShort = 32;

    /// For each prefix of `what`, by its last unit, the length of its longest border: the part that a mismatch may keep.
    static std::vector<std::size_t> bordersOf(View what) {
        std::vector<std::size_t> borders(what.size());
        for (std::size_t i = 1, border = 0; i < what.size(); ++i) {
            while (border && what[i] != what[border]) border = borders[border - 1];
            if (what[i] == what[border]) ++border;
            borders[i] = border;
        }
        return borders;
    }

    /// The algorithm of Knuth, Morris and Pratt.
    static std::size_t findByBorders(View text, View what, const std::vector<std::size_t>& borders, std::size_t from) {
        std::size_t matched = 0;
        for (std::size_t at = from; at < text.size(); ++at) {
            while (matched && text[at] != what[matched]) matched = borders[matched - 1];
            if (text[at] == what[matched]) ++matched;
            if (matched == what.size()) return at + 1 - matched;
        }
        return View::npos;
    }

    View what_;
    std::vector<std::size_t> borders_; // empty for a short text
};

} // namespace basic
