#include "Apps/workbench/code/code_pattern.h"
#include <optional>

namespace workbench {

namespace {

constexpr auto kNothingToFind = "Enter a text to find.";
constexpr auto kUnclosedList = "The pattern has a [ without a ].";

/// Converts the list after a "[", up to its "]". Empty if that is missing. A list cannot contain "]".
std::optional<QString> listAt(const QString& pattern, qsizetype& at) {
    const auto end = pattern.indexOf(']', at + 1);
    if (end < 0) return {};
    auto list = pattern.mid(at + 1, end - at - 1);
    at = end;
    const bool none = list.startsWith('!');
    if (none) list.remove(0, 1);
    if (list.isEmpty()) return QString();
    return (none ? "[^" : "[") + list.replace('\\', "\\\\").replace('[', "\\[").replace('^', "\\^") + "]";
}

/// Converts a pattern to a regular expression. Empty for an invalid pattern.
std::optional<QString> expressionOf(const QString& pattern) {
    QString expression;
    for (qsizetype at = 0; at < pattern.size(); ++at) {
        const auto sign = pattern[at];
        if (sign == '?') {
            expression += '.';
        } else if (sign == '#') {
            expression += "[0-9]";
        } else if (sign == '*') {
            // the shortest match, except at the end of the pattern, where it would be empty
            expression += at + 1 == pattern.size() ? ".*" : ".*?";
        } else if (sign == '[') {
            const auto list = listAt(pattern, at);
            if (!list) return {};
            expression += *list;
        } else {
            expression += QRegularExpression::escape(QString(sign));
        }
    }
    return expression;
}

} // namespace

CodePattern::CodePattern(const QString& what, FindOptions options)
    : literal_(options.pattern ? QString() : what),
      sensitivity_(options.matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive) {
    if (what.isEmpty()) {
        error_ = kNothingToFind;
        return;
    }
    const auto expression = options.pattern ? expressionOf(what) : QRegularExpression::escape(what);
    if (!expression) {
        error_ = kUnclosedList;
        return;
    }
    expression_.setPattern(options.wholeWord ? "(?<!\\w)(?:" + *expression + ")(?!\\w)" : *expression);
    auto how = QRegularExpression::PatternOptions(QRegularExpression::UseUnicodePropertiesOption);
    how.setFlag(QRegularExpression::CaseInsensitiveOption, !options.matchCase);
    expression_.setPatternOptions(how);
    if (!expression_.isValid()) error_ = expression_.errorString();
}

bool CodePattern::mayOccurIn(const QString& text) const { return text.contains(literal_, sensitivity_); }

std::vector<LineHit> CodePattern::hitsIn(const QString& line) const {
    std::vector<LineHit> hits;
    if (!error_.isEmpty()) return hits;
    for (auto matches = expression_.globalMatch(line); matches.hasNext();) {
        const auto match = matches.next();
        if (match.capturedLength() > 0) hits.push_back({int(match.capturedStart()), int(match.capturedLength())});
    }
    return hits;
}

} // namespace workbench
