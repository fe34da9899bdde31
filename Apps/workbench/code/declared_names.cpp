#include "Apps/workbench/code/declared_names.h"
#include "Apps/workbench/editing/name_part.h"
#include <initializer_list>
#include <limits>
#include <utility>

namespace workbench {

namespace {

bool isOneOf(const QString& word, std::initializer_list<const char*> some) {
    for (const auto* one : some)
        if (word.compare(QLatin1String(one), Qt::CaseInsensitive) == 0) return true;
    return false;
}

/// The words and signs of one line, without strings and comments.
QStringList tokensOf(const QString& line) {
    QStringList tokens;
    for (qsizetype at = 0; at < line.size();) {
        const auto sign = line[at];
        if (sign == '\'') break;
        qsizetype end = at + 1;
        if (sign == '"') {
            const auto close = line.indexOf('"', end);
            end = close < 0 ? line.size() : close + 1;
        } else if (isNamePart(sign)) {
            while (end < line.size() && isNamePart(line[end])) ++end;
            tokens << line.mid(at, end - at);
        } else if (!sign.isSpace())
            tokens << line.mid(at, 1);
        at = end;
    }
    return tokens;
}

/// Walks over the tokens of a statement.
class Tokens {
public:
    explicit Tokens(QStringList all) : all_(std::move(all)) {}

    QString peek() const { return at_ < all_.size() ? all_[at_] : QString(); }
    QString take() { return at_ < all_.size() ? all_[at_++] : QString(); }
    bool takeIf(std::initializer_list<const char*> some) {
        const bool is = isOneOf(peek(), some);
        if (is) ++at_;
        return is;
    }
    /// Moves past the next comma outside of parentheses. False at their end and at that of the statement.
    bool skipToComma() {
        for (int depth = 0; at_ < all_.size();) {
            const auto& token = all_[at_];
            if (depth == 0 && token == ")") return false;
            ++at_;
            if (depth == 0 && token == ",") return true;
            depth += token == "(" ? 1 : token == ")" ? -1 : 0;
        }
        return false;
    }

private:
    QStringList all_;
    qsizetype at_ = 0;
};

class DeclarationReader {
public:
    DeclaredNames read(const QStringList& lines) {
        for (int line = 0; line < int(lines.size()); ++line) {
            const int first = line;
            auto whole = lines[line];
            while (whole.endsWith(" _") && line + 1 < int(lines.size())) {
                whole.chop(1);
                whole += lines[++line];
            }
            readLine(tokensOf(whole), first, line);
        }
        return std::move(names_);
    }

private:
    enum class Block { None, Type, Enum };

    void readLine(const QStringList& tokens, int first, int last) {
        QStringList statement;
        for (const auto& token : tokens) {
            if (token != ":") {
                statement << token;
                continue;
            }
            readStatement(Tokens(std::exchange(statement, {})), first, last);
        }
        readStatement(Tokens(statement), first, last);
    }

    void readStatement(Tokens tokens, int first, int last) {
        if (tokens.takeIf({"End"})) return end(tokens, last);
        if (block_ == Block::Enum) return add(tokens.take(), true);
        if (block_ == Block::Type) return;
        bool isPrivate = false, isPublic = false, isDeclare = false, declares = false;
        for (bool more = true; more;) {
            const auto word = tokens.peek();
            more = tokens.takeIf(
                {"Public", "Global", "Private", "Friend", "Static", "Dim", "Const", "WithEvents", "Declare"});
            isPublic = isPublic || (more && isOneOf(word, {"Public", "Global"}));
            isPrivate = isPrivate || (more && isOneOf(word, {"Private"}));
            declares = declares || more;
            isDeclare = isDeclare || (more && isOneOf(word, {"Declare"}));
        }
        if (tokens.takeIf({"Type"})) return begin(Block::Type, tokens, !isPrivate);
        if (tokens.takeIf({"Enum"})) return begin(Block::Enum, tokens, !isPrivate);
        if (tokens.takeIf({"Event"})) return add(tokens.take(), !isPrivate);
        const bool isProperty = isOneOf(tokens.peek(), {"Property"});
        if (tokens.takeIf({"Sub", "Function", "Property"})) {
            if (isDeclare) return add(tokens.take(), !isPrivate);
            if (isProperty) tokens.takeIf({"Get", "Let", "Set"});
            return procedure(tokens, !isPrivate, first);
        }
        if (declares) list(tokens, isPublic);
    }

    void begin(Block block, Tokens& tokens, bool isShared) {
        block_ = block;
        add(tokens.take(), isShared);
    }

    void end(Tokens& tokens, int last) {
        if (tokens.takeIf({"Type", "Enum"})) block_ = Block::None;
        if (!tokens.takeIf({"Sub", "Function", "Property"}) || !inProcedure_) return;
        names_.procedures.back().last = last;
        inProcedure_ = false;
    }

    void procedure(Tokens& tokens, bool isShared, int first) {
        inProcedure_ = false;
        add(tokens.take(), isShared);
        inProcedure_ = true;
        names_.procedures.push_back({first, std::numeric_limits<int>::max(), {}});
        while (!tokens.peek().isEmpty() && tokens.take() != "(") {}
        if (tokens.peek() == ")" || tokens.peek().isEmpty()) return;
        do {
            while (tokens.takeIf({"Optional", "ByVal", "ByRef", "ParamArray"})) {}
            add(tokens.take(), false);
        } while (tokens.skipToComma());
    }

    void list(Tokens& tokens, bool isShared) {
        do {
            while (tokens.takeIf({"WithEvents"})) {}
            add(tokens.take(), isShared);
        } while (tokens.skipToComma());
    }

    void add(const QString& name, bool isShared) {
        if (name.isEmpty() || !(name[0].isLetter() || name[0] == '_')) return;
        const auto keep = [&name](Spellings& spellings) {
            const auto lower = name.toLower();
            if (!spellings.contains(lower)) spellings.insert(lower, name);
        };
        if (inProcedure_) return keep(names_.procedures.back().names);
        keep(names_.own);
        if (isShared) keep(names_.shared);
    }

    DeclaredNames names_;
    Block block_ = Block::None;
    bool inProcedure_ = false;
};

} // namespace

DeclaredNames declaredNames(const QStringList& lines) { return DeclarationReader().read(lines); }

} // namespace workbench
