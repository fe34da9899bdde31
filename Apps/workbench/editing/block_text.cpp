#include "Apps/workbench/editing/block_text.h"
#include "Apps/workbench/editing/code_lines.h"
#include "Apps/workbench/editing/scintilla.h"
#include <algorithm>

namespace workbench {

namespace {

int balanceOf(const BlockLine& line, Block block) {
    return int(std::count(line.opens.begin(), line.opens.end(), block) -
               std::count(line.ends.begin(), line.ends.end(), block));
}

} // namespace

int BlockText::count() const { return text_.lines(); }

bool BlockText::isContinued(int line) const { return line > 0 && lineText(text_, line - 1).endsWith(" _"); }

int BlockText::firstOf(int line) const {
    while (isContinued(line)) --line;
    return line;
}

BlockLine BlockText::at(int line) const {
    if (isContinued(line)) return {};
    auto statement = lineText(text_, line);
    while (statement.endsWith(" _") && line + 1 < count()) {
        statement.chop(1);
        statement += lineText(text_, ++line);
    }
    return blockLine(statement);
}

QString BlockText::indentation(int line) const {
    const auto text = lineText(text_, line);
    qsizetype end = 0;
    while (end < text.size() && text[end].isSpace()) ++end;
    return text.left(end);
}

bool BlockText::lacksEnd(int line, Block block) const {
    if (!isProcedureBlock(block)) return !hasOwnEnd(line) && excessAround(line, block) > 0;
    for (int below = line + 1; below < count(); ++below) {
        const auto found = at(below);
        if (found.endsProcedure()) return false;
        if (found.beginsProcedure()) return true;
    }
    return true;
}

/// Whether the line that ends the block is indented like the line that opens it.
bool BlockText::hasOwnEnd(int line) const {
    int depth = 1;
    for (int below = line + 1; below < count(); ++below) {
        const auto found = at(below);
        if (found.endsProcedure() || found.beginsProcedure()) return false;
        depth -= int(found.ends.size());
        if (depth <= 0) return indentation(below) == indentation(line);
        depth += int(found.opens.size());
    }
    return false;
}

/// How many more blocks of this kind the procedure around a line opens than it ends.
int BlockText::excessAround(int line, Block block) const {
    int excess = balanceOf(at(line), block);
    const auto adds = [&](int other) {
        const auto found = at(other);
        excess += balanceOf(found, block);
        return !found.beginsProcedure() && !found.endsProcedure();
    };
    for (int above = line - 1; above >= 0 && adds(above);) --above;
    for (int below = line + 1; below < count() && adds(below);) ++below;
    return excess;
}

int BlockText::openerOf(int line) const {
    const auto own = at(line);
    const auto block = own.ends.empty() ? own.middle : own.ends.front();
    if (block == Block::None) return -1;
    std::size_t depth = 0;
    for (int above = line - 1; above >= 0; --above) {
        const auto found = at(above);
        if (depth == 0 && own.ends.empty() && found.middle == block) return above;
        if (found.opens.size() > depth) return found.opens[found.opens.size() - 1 - depth] == block ? above : -1;
        depth = depth - found.opens.size() + found.ends.size();
        if (found.endsProcedure() || found.beginsProcedure()) return -1;
    }
    return -1;
}

} // namespace workbench
