#include "Apps/workbench/code/line_differences.h"
#include <algorithm>
#include <vector>

namespace workbench {

namespace {

/// If there are more pairs of lines, all differences count as one run.
constexpr qsizetype kMostPairs = 4'000'000;

QStringList linesOf(QString text) {
    auto lines = text.remove('\r').split('\n');
    if (lines.last().isEmpty()) lines.removeLast();
    return lines;
}

/// The length of the longest common subsequence of lines, for each pair of tails of two texts.
class CommonLines {
public:
    CommonLines(const QStringList& oldLines, const QStringList& newLines) : width_(newLines.size() + 1) {
        if (oldLines.size() * newLines.size() > kMostPairs) return;
        counts_.assign(std::size_t((oldLines.size() + 1) * width_), 0);
        for (auto i = oldLines.size() - 1; i >= 0; --i)
            for (auto j = newLines.size() - 1; j >= 0; --j)
                at(i, j) = oldLines[i] == newLines[j] ? at(i + 1, j + 1) + 1 : std::max(at(i + 1, j), at(i, j + 1));
    }
    int operator()(qsizetype i, qsizetype j) const {
        return counts_.empty() ? 0 : counts_[std::size_t(i * width_ + j)];
    }
    bool known() const { return !counts_.empty(); }

private:
    int& at(qsizetype i, qsizetype j) { return counts_[std::size_t(i * width_ + j)]; }

    qsizetype width_;
    std::vector<int> counts_;
};

} // namespace

QStringList differencesOf(const QString& oldText, const QString& newText, qsizetype most) {
    auto oldLines = linesOf(oldText), newLines = linesOf(newText);
    qsizetype above = 0;
    while (!oldLines.isEmpty() && !newLines.isEmpty() && oldLines.first() == newLines.first()) {
        oldLines.removeFirst();
        newLines.removeFirst();
        ++above;
    }
    while (!oldLines.isEmpty() && !newLines.isEmpty() && oldLines.last() == newLines.last()) {
        oldLines.removeLast();
        newLines.removeLast();
    }
    const CommonLines common(oldLines, newLines);
    QStringList differences;
    bool inRun = false;
    const auto add = [&](const char* sign, const QString& line, qsizetype j) {
        if (!inRun) differences << QString("line %1:").arg(above + j + 1);
        inRun = true;
        differences << sign + line;
    };
    for (qsizetype i = 0, j = 0; i < oldLines.size() || j < newLines.size();) {
        const bool both = i < oldLines.size() && j < newLines.size();
        if (both && common.known() && oldLines[i] == newLines[j]) {
            inRun = false;
            ++i;
            ++j;
        } else if (i < oldLines.size() && (!both || common(i + 1, j) >= common(i, j + 1))) {
            add("- ", oldLines[i++], j);
        } else {
            add("+ ", newLines[j], j);
            ++j;
        }
        if (differences.size() > most) return differences.mid(0, most) << "...";
    }
    return differences;
}

} // namespace workbench
