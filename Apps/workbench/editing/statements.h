#pragma once
// The statements of a line of code, without strings and comments.
#include <QString>
#include <QStringView>
#include <vector>

namespace workbench {

struct Statement {
    /// The words at its start, up to the first character that is neither part of a word nor a blank. A line number is
    /// left out.
    std::vector<QStringView> words;
    /// All of it; strings are replaced by blanks.
    QStringView text;

    /// Compares without regard to letter case.
    bool hasWord(std::size_t index, const char* word) const;
};

/// Returns the line without its comment and with blanks for strings.
QString bareCode(const QString& line);
/// Returns the statements of a bare line, which must outlive them.
std::vector<Statement> statementsOf(const QString& bare);
/// A part of a bare line as one statement.
Statement statementOf(QStringView text);

} // namespace workbench
