#include "Apps/workbench/code/definition.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/code/code_text.h"
#include "Apps/workbench/editing/name_part.h"
#include <QRegularExpression>
#include <QStringList>
#include <algorithm>

namespace workbench {

namespace {

bool isSame(const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

/// A line without its comment, and with blank string literals.
QString codeOnly(QString line) {
    bool inText = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] == '"')
            inText = !inText;
        else if (inText)
            line[i] = ' ';
        else if (line[i] == '\'')
            return line.left(i);
    }
    return line;
}

QRegularExpression expression(const QString& pattern) {
    return QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption |
                                           QRegularExpression::UseUnicodePropertiesOption);
}

/// Searches the lines of a component for declarations of one name.
class DeclarationFinder {
public:
    DeclarationFinder(vbide::Ref<vbide::VBComponent> component, QString name)
        : component_(std::move(component)),
          lines_(codeOf(*component_->CodeModule()).split('\n')),
          name_(std::move(name)),
          word_(expression("\\b" + QRegularExpression::escape(name_) + "\\b")) {}

    /// Finds parameters and what Dim, Static, Const and ReDim declare in a procedure.
    std::optional<CodePlace> inProcedure(int line) const {
        const auto range = procedureAround(*component_->CodeModule(), line);
        static const auto head =
            expression("^\\s*(?:(?:Public|Private|Friend|Static)\\s+)*(?:Sub|Function|Property)\\b");
        static const auto declares = expression("(?:^|:|\\bThen\\b)\\s*(?:Dim|Static|Const|ReDim)\\b");
        bool inHead = false, continued = false, declaring = false;
        for (int at = range.first; at <= range.last && at < lines_.size(); ++at) {
            const auto code = codeOnly(lines_[at]);
            if (!continued) {
                const auto begun = head.match(code);
                inHead = begun.hasMatch();
                declaring = declares.match(code).hasMatch();
            }
            continued = code.endsWith(" _");
            if (!inHead && !declaring) continue;
            if (auto place = declaredIn(at, code, inHead)) return place;
        }
        return {};
    }

    /// Finds procedures, variables, constants, events, types and enumerations of the module; only public ones if the
    /// search comes from another module.
    std::optional<CodePlace> inModule(bool fromOutside) const {
        constexpr int kPrivate = 1;
        for (const auto& member : component_->CodeModule()->Members())
            if (isSame(qt(member.Name), name_) && (!fromOutside || member.Scope != kPrivate))
                if (auto place = wordFrom(member.CodeLocation - 1)) return place;
        return inBlocks(fromOutside);
    }

private:
    static bool isParameter(const QString& code, qsizetype at) { return code.left(at).contains('('); }

    /// A name that is declared, not a type after As, a value after = or a size.
    std::optional<CodePlace> declaredIn(int line, const QString& code, bool inHead) const {
        for (auto matches = word_.globalMatch(code); matches.hasNext();) {
            const auto match = matches.next();
            const auto at = match.capturedStart();
            const auto before = code.left(at);
            static const auto notDeclared = expression("(?:\\bAs(?:\\s+New)?\\s+(?:\\w+\\.)?|=[^,]*|\\.)$");
            const bool inSize = !inHead && before.count('(') > before.count(')');
            if (inSize || notDeclared.match(before).hasMatch()) continue;
            if (inHead && !isParameter(code, at) && !isContinuation(line)) continue; // the procedure's own name
            return CodePlace{component_, line, int(at), int(match.capturedLength())};
        }
        return {};
    }
    bool isContinuation(int line) const { return line > 0 && codeOnly(lines_[line - 1]).endsWith(" _"); }

    /// Finds types, enumerations and the constants of enumerations.
    std::optional<CodePlace> inBlocks(bool fromOutside) const {
        static const auto begins = expression("^\\s*(?:(Public|Private)\\s+)?(Type|Enum)\\s+(\\w+)");
        static const auto ends = expression("^\\s*End\\s+(?:Type|Enum)\\b");
        bool inEnum = false, hidden = false;
        const int count = std::min(int(lines_.size()), component_->CodeModule()->CountOfDeclarationLines());
        for (int line = 0; line < count; ++line) {
            const auto code = codeOnly(lines_[line]);
            if (const auto begun = begins.match(code); begun.hasMatch()) {
                inEnum = isSame(begun.captured(2), "Enum");
                hidden = isSame(begun.captured(1), "Private") && fromOutside;
                if (!hidden && isSame(begun.captured(3), name_)) return wordFrom(line);
            } else if (ends.match(code).hasMatch()) {
                inEnum = false;
            } else if (inEnum && !hidden && isSame(code.section('=', 0, 0).trimmed(), name_)) {
                return wordFrom(line);
            }
        }
        return {};
    }

    /// Finds the name in the statement that begins in this line.
    std::optional<CodePlace> wordFrom(int line) const {
        for (; line >= 0 && line < lines_.size(); ++line) {
            const auto code = codeOnly(lines_[line]);
            if (const auto match = word_.match(code); match.hasMatch())
                return CodePlace{component_, line, int(match.capturedStart()), int(match.capturedLength())};
            if (!code.endsWith(" _")) break;
        }
        return {};
    }

    vbide::Ref<vbide::VBComponent> component_;
    QStringList lines_;
    QString name_;
    QRegularExpression word_;
};

vbide::Ref<vbide::VBComponent> componentNamed(const QString& name, const CodePlace& at) {
    if (name.isEmpty()) return nullptr;
    if (isSame(name, "Me")) return at.component;
    for (const auto& component : at.component->Collection()->items())
        if (isSame(qt(component->Name()), name)) return component;
    return nullptr;
}

} // namespace

NameInCode nameAt(const QString& line, int column) {
    const auto code = codeOnly(line);
    const auto nameAround = [&code](qsizetype at, qsizetype& first) {
        first = std::min(at, code.size());
        while (first > 0 && isNamePart(code[first - 1])) --first;
        qsizetype end = first;
        while (end < code.size() && isNamePart(code[end])) ++end;
        return code.mid(first, end - first);
    };
    qsizetype first = 0, unused = 0;
    NameInCode found;
    found.name = nameAround(column, first);
    if (!found.name.isEmpty() && first > 0 && code[first - 1] == '.') found.object = nameAround(first - 1, unused);
    return found;
}

std::optional<CodePlace> definitionOf(const NameInCode& name, const CodePlace& at) {
    if (name.name.isEmpty()) return {};
    if (const auto owner = componentNamed(name.object, at))
        return DeclarationFinder(owner, name.name).inModule(owner != at.component);
    const DeclarationFinder own(at.component, name.name);
    // a variable and a point are followed by a member of its class, not by a local name
    if (name.object.isEmpty())
        if (auto place = own.inProcedure(at.line)) return place;
    if (auto place = own.inModule(false)) return place;
    for (const auto& component : at.component->Collection()->items())
        if (component != at.component)
            if (auto place = DeclarationFinder(component, name.name).inModule(true)) return place;
    if (const auto component = componentNamed(name.name, at)) return CodePlace{component, 0, 0, 0};
    return {};
}

} // namespace workbench
