#include "Apps/workbench/code/keyword_case.h"
#include <QHash>
#include <QStringList>

namespace workbench {

namespace {

/// Reserved words, which cannot be names.
constexpr auto kReserved =
    "AddressOf And Any As Boolean ByRef Byte ByVal Call Case CBool CByte CCur CDate CDbl CInt CLng Const CSng "
    "CStr Currency CVar Declare Dim Do Double Each Else ElseIf Empty End Enum Eqv Event Exit Explicit False "
    "For Friend Function Get GoSub GoTo If Imp Implements In Integer Is Let Like Long Loop LSet Me Mod New "
    "Next Nothing Not Null On Option Optional Or ParamArray Preserve Private Property Public RaiseEvent ReDim "
    "Resume Return RSet Select Set Single Static Stop String Sub Then To True Type TypeOf Until Variant Wend "
    "While With WithEvents Xor";
/// Words that are types after As.
constexpr auto kTypes = "Date Object";

QHash<QString, QString> byLowerCase(const char* words) {
    QHash<QString, QString> table;
    for (const auto& word : QString(words).split(' ')) table.insert(word.toLower(), word);
    return table;
}

bool isWordPart(QChar c) { return c.isLetterOrNumber() || c == '_'; }

/// Rewrites the keywords of a line.
class KeywordWriter {
public:
    explicit KeywordWriter(QString line) : line_(std::move(line)) {}

    /// Returns the column of the comment, or the length of a line without one.
    qsizetype run() {
        for (qsizetype at = 0; at < line_.size();) {
            const auto sign = line_[at];
            if (sign == '\'') return at;
            if (sign == '"' || sign == '[') {
                at = after(at, sign == '"' ? '"' : ']');
            } else if (isWordPart(sign)) {
                qsizetype end = at;
                while (end < line_.size() && isWordPart(line_[end])) ++end;
                if (beginsStatement_ && line_.mid(at, end - at).compare("Rem", Qt::CaseInsensitive) == 0) {
                    line_.replace(at, end - at, "Rem");
                    return at;
                }
                word(at, end);
                at = end;
                beginsStatement_ = false;
            } else {
                if (!sign.isSpace()) beginsStatement_ = sign == ':';
                ++at;
            }
        }
        return line_.size();
    }
    const QString& line() const { return line_; }

private:
    qsizetype after(qsizetype at, QChar end) const {
        const auto found = line_.indexOf(end, at + 1);
        return found < 0 ? line_.size() : found + 1;
    }

    void word(qsizetype at, qsizetype end) {
        static const auto kWords = byLowerCase(kReserved), kTypeWords = byLowerCase(kTypes);
        const auto before = at > 0 ? line_[at - 1] : QChar(' ');
        const bool isMember = before == '.' || before == '!', isArgument = line_.mid(end).startsWith(":=");
        const auto lower = line_.mid(at, end - at).toLower();
        if (!isMember && !isArgument) {
            auto written = kWords.value(lower);
            if (written.isEmpty() && isAfterAs_) written = kTypeWords.value(lower);
            if (!written.isEmpty()) line_.replace(at, end - at, written);
        }
        isAfterAs_ = lower == "as" || (isAfterAs_ && lower == "new");
    }

    QString line_;
    bool beginsStatement_ = true, isAfterAs_ = false;
};

} // namespace

QString withKeywordCase(const QString& line) {
    KeywordWriter writer(line);
    writer.run();
    return writer.line();
}

bool continuesComment(const QString& line) { return line.endsWith(" _") && KeywordWriter(line).run() < line.size(); }

} // namespace workbench
