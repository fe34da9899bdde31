#include "Apps/workbench/editing/statements.h"
#include "Apps/workbench/editing/name_part.h"

namespace workbench {

namespace {

bool isRemark(QStringView code) {
    return code.startsWith(QLatin1String("Rem"), Qt::CaseInsensitive) && (code.size() == 3 || !isNamePart(code[3]));
}

qsizetype afterBlanks(QStringView text, qsizetype at) {
    while (at < text.size() && text[at].isSpace()) ++at;
    return at;
}

qsizetype afterWord(QStringView text, qsizetype at) {
    while (at < text.size() && isNamePart(text[at])) ++at;
    return at;
}

} // namespace

bool Statement::hasWord(std::size_t index, const char* word) const {
    return index < words.size() && words[index].compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
}

QString bareCode(const QString& line) {
    auto bare = line;
    bool inString = false, begins = true;
    for (qsizetype at = 0; at < bare.size(); ++at) {
        const auto sign = bare[at];
        if (!inString && (sign == '\'' || (begins && isRemark(QStringView(bare).mid(at))))) return bare.left(at);
        if (sign == '"') inString = !inString;
        begins = !inString && (sign == ':' || (begins && sign.isSpace()));
        if (inString || sign == '"') bare[at] = ' ';
    }
    return bare;
}

Statement statementOf(QStringView text) {
    Statement statement{{}, text};
    qsizetype at = afterBlanks(text, 0);
    for (auto end = afterWord(text, at); end > at; end = afterWord(text, at)) {
        const auto word = text.mid(at, end - at);
        if (!statement.words.empty() || !word[0].isDigit()) statement.words.push_back(word);
        at = afterBlanks(text, end);
    }
    return statement;
}

std::vector<Statement> statementsOf(const QString& bare) {
    std::vector<Statement> statements;
    const QStringView all(bare);
    qsizetype start = 0;
    for (qsizetype at = 0; at <= all.size(); ++at) {
        const bool ends = at == all.size() || (all[at] == ':' && (at + 1 == all.size() || all[at + 1] != '='));
        if (!ends) continue;
        statements.push_back(statementOf(all.mid(start, at - start)));
        start = at + 1;
    }
    return statements;
}

} // namespace workbench
