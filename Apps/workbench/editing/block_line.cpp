#include "Apps/workbench/editing/block_line.h"
#include "Apps/workbench/editing/name_part.h"
#include "Apps/workbench/editing/statements.h"
#include <algorithm>
#include <array>

namespace workbench {

namespace {

struct BlockWords {
    Block block;
    const char *opening, *ending;
};
constexpr std::array kBlocks{
    BlockWords{Block::Sub, "Sub", "End Sub"},
    BlockWords{Block::Function, "Function", "End Function"},
    BlockWords{Block::Property, "Property", "End Property"},
    BlockWords{Block::If, "If", "End If"},
    BlockWords{Block::For, "For", "Next"},
    BlockWords{Block::Do, "Do", "Loop"},
    BlockWords{Block::While, "While", "Wend"},
    BlockWords{Block::With, "With", "End With"},
    BlockWords{Block::Select, "Select", "End Select"},
    BlockWords{Block::Type, "Type", "End Type"},
    BlockWords{Block::Enum, "Enum", "End Enum"},
    BlockWords{Block::Directive, "#If", "#End If"},
};

std::size_t modifiersOf(const Statement& statement) {
    std::size_t count = 0;
    while (statement.hasWord(count, "Public") || statement.hasWord(count, "Private") ||
           statement.hasWord(count, "Friend") || statement.hasWord(count, "Static") ||
           statement.hasWord(count, "Global"))
        ++count;
    return count;
}

bool endsInThen(QStringView text) {
    const auto trimmed = text.trimmed();
    const auto before = trimmed.size() - 5;
    return trimmed.endsWith(QLatin1String("Then"), Qt::CaseInsensitive) && before >= 0 && !isNamePart(trimmed[before]);
}

/// A Type or Enum has a name and nothing else in its line.
bool isNameOnly(const Statement& statement, std::size_t word) {
    return statement.words.size() == word + 2 && statement.text.trimmed().endsWith(statement.words.back());
}

/// Whether a word at the start of a statement really opens its block.
bool opensBlock(Block block, const Statement& statement, std::size_t at) {
    const auto words = statement.words.size();
    switch (block) {
    case Block::Sub:
    case Block::Function: return words > at + 1;
    case Block::Property:
        return words > at + 2 && (statement.hasWord(at + 1, "Get") || statement.hasWord(at + 1, "Let") ||
                                  statement.hasWord(at + 1, "Set"));
    case Block::Type:
    case Block::Enum: return isNameOnly(statement, at);
    case Block::Select: return at == 0 && statement.hasWord(1, "Case");
    case Block::For: return at == 0 && words > 1;
    case Block::If: return at == 0 && endsInThen(statement.text);
    default: return at == 0;
    }
}

Block openedBy(const Statement& statement) {
    const auto at = modifiersOf(statement);
    for (const auto& one : kBlocks)
        if (statement.hasWord(at, one.opening)) return opensBlock(one.block, statement, at) ? one.block : Block::None;
    return Block::None;
}

Block endedBy(const Statement& statement) {
    const bool isEnd = statement.hasWord(0, "End") && statement.words.size() > 1;
    for (const auto& one : kBlocks) {
        const bool hasOwnWord = one.block == Block::For || one.block == Block::Do || one.block == Block::While;
        if (hasOwnWord ? statement.hasWord(0, one.ending) : isEnd && statement.hasWord(1, one.opening))
            return one.block;
    }
    return Block::None;
}

Block middleOf(const Statement& statement) {
    if (statement.hasWord(0, "Else") || statement.hasWord(0, "ElseIf")) return Block::If;
    return statement.hasWord(0, "Case") ? Block::Select : Block::None;
}

void end(BlockLine& line, Block block) {
    if (!line.opens.empty() && line.opens.back() == block)
        line.opens.pop_back();
    else
        line.ends.push_back(block);
}

/// A directive fills its line.
BlockLine directiveLine(const QString& bare) {
    const auto statement = statementOf(QStringView(bare).mid(bare.indexOf('#') + 1));
    BlockLine line;
    if (statement.hasWord(0, "If")) line.opens.push_back(Block::Directive);
    if (statement.hasWord(0, "End")) line.ends.push_back(Block::Directive);
    if (middleOf(statement) == Block::If) line.middle = Block::Directive;
    return line;
}

} // namespace

bool isProcedureBlock(Block block) {
    return block == Block::Sub || block == Block::Function || block == Block::Property;
}

QString endOf(Block block) {
    for (const auto& one : kBlocks)
        if (one.block == block) return one.ending;
    return {};
}

BlockLine blockLine(const QString& line) {
    const auto bare = bareCode(line);
    if (bare.trimmed().startsWith('#')) return directiveLine(bare);
    BlockLine found;
    for (const auto& statement : statementsOf(bare)) {
        // what follows the Then of a single-line form belongs to it, colons too
        const auto rest = QStringView(bare).mid(statement.text.data() - bare.constData());
        if (statement.hasWord(0, "If") && !endsInThen(rest)) break;
        if (const auto opened = openedBy(statement); opened != Block::None)
            found.opens.push_back(opened);
        else if (const auto ended = endedBy(statement); ended != Block::None)
            for (auto more = statement.text.count(','); more >= 0; --more) end(found, ended);
        else if (found.isEmpty())
            found.middle = middleOf(statement);
    }
    return found;
}

QString withParentheses(const QString& line) {
    const auto bare = bareCode(line);
    const auto statement = statementOf(bare);
    const auto opened = openedBy(statement);
    if (!isProcedureBlock(opened) || bare.contains('(')) return line;
    const auto& name = statement.words[modifiersOf(statement) + (opened == Block::Property ? 2 : 1)];
    auto end = name.data() + name.size() - bare.constData();
    constexpr auto kTypeSigns = "%&!#@$";
    if (end < bare.size() && QString(kTypeSigns).contains(bare[end])) ++end;
    return line.left(end) + "()" + line.mid(end);
}

} // namespace workbench
