#pragma once
// The blocks that a statement opens and ends.
#include <QString>
#include <vector>

namespace workbench {

enum class Block { None, Sub, Function, Property, If, For, Do, While, With, Select, Type, Enum, Directive };

/// Whether it is a Sub, Function or Property.
bool isProcedureBlock(Block block);
/// The text that ends a block, such as "End Sub".
QString endOf(Block block);

struct BlockLine {
    std::vector<Block> opens;   ///< and does not end, the outer one first
    std::vector<Block> ends;    ///< without having opened them
    Block middle = Block::None; ///< the If of an Else, or the Select of a Case

    bool isEmpty() const { return opens.empty() && ends.empty() && middle == Block::None; }
    /// The procedure, Type, loop or other block that is open after the line; None if there is none.
    Block opened() const { return opens.empty() ? Block::None : opens.back(); }
    bool beginsProcedure() const { return !opens.empty() && isProcedureBlock(opens.front()); }
    bool endsProcedure() const { return !ends.empty() && isProcedureBlock(ends.front()); }
};

/// Reads a line of statements; lines that continue are joined before.
BlockLine blockLine(const QString& line);

/// Returns the header of a procedure with the parentheses that it lacks; any other line is unchanged.
QString withParentheses(const QString& line);

} // namespace workbench
