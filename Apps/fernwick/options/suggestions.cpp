#include "Apps/fernwick/options/suggestions.h"
#include "Basic/case_folding.h"
#include <algorithm>

namespace cli {

namespace {

// A word may have one mistake for each three letters.
constexpr std::size_t kLettersPerMistake = 3;
constexpr std::size_t kShortestBeginning = 3;

std::size_t smallest(std::size_t a, std::size_t b, std::size_t c) { return std::min(std::min(a, b), c); }

/// Counts the letters to insert, remove, replace, or exchange with their neighbours.
std::size_t mistakesBetween(std::string_view a, std::string_view b) {
    std::vector<std::vector<std::size_t>> rows(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i) rows[i][0] = i;
    for (std::size_t j = 0; j <= b.size(); ++j) rows[0][j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i)
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t other = a[i - 1] == b[j - 1] ? 0 : 1;
            rows[i][j] = smallest(rows[i - 1][j] + 1, rows[i][j - 1] + 1, rows[i - 1][j - 1] + other);
            const bool exchanged = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
            if (exchanged) rows[i][j] = std::min(rows[i][j], rows[i - 2][j - 2] + 1);
        }
    return rows[a.size()][b.size()];
}

std::size_t mistakesAllowed(std::string_view typed, std::string_view name) {
    return std::max<std::size_t>(1, std::max(typed.size(), name.size()) / kLettersPerMistake);
}

} // namespace

std::string nearestName(std::string_view typed, const std::vector<std::string>& names) {
    const auto wanted = basic::foldCase(typed);
    if (wanted.empty()) return {};
    const std::string* nearest = nullptr;
    std::size_t fewest = 0;
    for (const auto& name : names) {
        const auto folded = basic::foldCase(name);
        const bool begins = wanted.size() >= kShortestBeginning && folded.starts_with(wanted);
        const auto mistakes = begins ? 1 : mistakesBetween(wanted, folded);
        const bool isSimilar = begins || (mistakes <= mistakesAllowed(wanted, folded) && mistakes < wanted.size());
        if (!isSimilar || (nearest && mistakes >= fewest)) continue;
        nearest = &name;
        fewest = mistakes;
    }
    return nearest ? *nearest : std::string();
}

std::string didYouMean(std::string_view typed, const std::vector<std::string>& names) {
    const auto nearest = nearestName(typed, names);
    return nearest.empty() ? std::string() : "; did you mean " + nearest + "?";
}

std::string listedWords(const std::vector<std::string>& words, std::string_view conjunction) {
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (i > 0) text += i + 1 == words.size() ? " " + std::string(conjunction) + " " : ", ";
        text += words[i];
    }
    return text;
}

} // namespace cli
