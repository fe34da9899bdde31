#pragma once
// The text or pattern to find in lines of code.
#include <QRegularExpression>
#include <QString>
#include <vector>

namespace workbench {

struct FindOptions {
    bool matchCase = false;
    bool wholeWord = false;
    /// The syntax of the language's Like: ? one character, # one digit, * any characters, [a-z] one of these, [!a-z]
    /// none of these.
    bool pattern = false;
};

/// A part of a line; columns count from 0.
struct LineHit {
    int column = 0, length = 0;

    friend bool operator==(const LineHit&, const LineHit&) = default;
};

class CodePattern {
public:
    CodePattern(const QString& what, FindOptions options);

    /// Why it is invalid; "" if it is valid.
    QString error() const { return error_; }
    /// False if no line of this text can have a hit; a quick test.
    bool mayOccurIn(const QString& text) const;
    /// Returns the hits from left to right. They do not overlap, and none is empty.
    std::vector<LineHit> hitsIn(const QString& line) const;

private:
    QRegularExpression expression_;
    QString literal_; ///< what each hit contains; "" for a pattern
    Qt::CaseSensitivity sensitivity_;
    QString error_;
};

} // namespace workbench
