#pragma once
// What is looked for in lines of code.
#include <QRegularExpression>
#include <QString>
#include <vector>

namespace workbench {

struct FindOptions {
    bool matchCase = false;
    bool wholeWord = false;
    /// As the language's Like reads it: ? one character, # one digit, * any, [a-z] and [!a-z] one of or none of these.
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

    /// Why it can't be looked for; "" when it can.
    QString error() const { return error_; }
    /// From left to right. None overlaps another one, and none is empty.
    std::vector<LineHit> hitsIn(const QString& line) const;

private:
    QRegularExpression expression_;
    QString error_;
};

} // namespace workbench
