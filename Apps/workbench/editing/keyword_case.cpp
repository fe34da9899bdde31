#include "Apps/workbench/editing/keyword_case.h"
#include "Apps/workbench/editing/name_part.h"
#include "Basic/vb_words.h"
#include <QHash>

namespace workbench {

namespace {

/// Date is also a function and Object may be a name: they are written as types only after As.
bool isTypeOnlyAfterAs(const basic::VbWordInfo& word) { return word.text == "Date" || word.text == "Object"; }

/// Words that cannot be names, and those contextual ones that hardly ever are.
bool isWrittenEverywhere(const basic::VbWordInfo& word) {
    if (isTypeOnlyAfterAs(word)) return false;
    switch (word.kind) {
    case basic::VbWordKind::Reserved:
    case basic::VbWordKind::Type:
    case basic::VbWordKind::Conversion: return true;
    default: return word.text == "Explicit" || word.text == "Property";
    }
}

QHash<QString, QString> byLowerCase(bool (*isWanted)(const basic::VbWordInfo&)) {
    QHash<QString, QString> table;
    for (const auto& word : basic::vbWords()) {
        const auto text = QString::fromLatin1(word.text.data(), qsizetype(word.text.size()));
        if (isWanted(word)) table.insert(text.toLower(), text);
    }
    return table;
}

/// Rewrites the keywords of one line.
class KeywordWriter {
public:
    KeywordWriter(QString line, const NameLookup& names) : line_(std::move(line)), names_(names) {}

    /// Returns the column of the line's comment, or the line's length if it has none.
    qsizetype run() {
        for (qsizetype at = 0; at < line_.size();) {
            const auto sign = line_[at];
            if (sign == '\'') return at;
            if (sign == '"' || sign == '[') {
                at = after(at, sign == '"' ? '"' : ']');
            } else if (isNamePart(sign)) {
                qsizetype end = at;
                while (end < line_.size() && isNamePart(line_[end])) ++end;
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
        static const auto words = byLowerCase(isWrittenEverywhere), types = byLowerCase(isTypeOnlyAfterAs);
        const auto before = at > 0 ? line_[at - 1] : QChar(' ');
        const bool isMember = before == '.' || before == '!', isArgument = line_.mid(end).startsWith(":=");
        const auto lower = line_.mid(at, end - at).toLower();
        QString written;
        if (!isMember && !isArgument) written = words.value(lower);
        if (!isMember && !isArgument && written.isEmpty() && isAfterAs_) written = types.value(lower);
        if (written.isEmpty() && !isArgument && before != '!') written = names_(lower, isMember ? objectAt(at) : "");
        if (written.size() == end - at) line_.replace(at, end - at, written);
        isAfterAs_ = lower == "as" || (isAfterAs_ && lower == "new");
        lastAt_ = at;
        lastEnd_ = end;
    }

    /// The word before the point in front of a member; something that is no name for a call or a With.
    QString objectAt(qsizetype member) const {
        return lastEnd_ == member - 1 ? line_.mid(lastAt_, lastEnd_ - lastAt_) : QString(".");
    }

    QString line_;
    const NameLookup& names_;
    qsizetype lastAt_ = 0, lastEnd_ = 0;
    bool beginsStatement_ = true, isAfterAs_ = false;
};

} // namespace

QString withKeywordCase(const QString& line, const NameLookup& names) {
    KeywordWriter writer(line, names);
    writer.run();
    return writer.line();
}

bool continuesComment(const QString& line) {
    const NameLookup noNames = [](const QString&, const QString&) { return QString(); };
    return line.endsWith(" _") && KeywordWriter(line, noNames).run() < line.size();
}

} // namespace workbench
