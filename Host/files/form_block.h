#pragma once
// A block of a form: Begin to End, or BeginProperty to EndProperty, as a tree over the lines of the file.
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace host {

/// Holds its own lines, so that writing it gives back what was read, and an edit touches only its line.
/// Names of properties match without regard to case. Of a property that stands twice the last one counts.
class FormBlock {
public:
    enum class Kind {
        Object,    ///< Begin .. End: a form, a control, a menu
        Properties ///< BeginProperty .. EndProperty: a font, a collection, a member of one
    };
    using Blocks = std::vector<std::shared_ptr<FormBlock>>;

    FormBlock(Kind kind, std::string firstLine);

    Kind kind() const { return kind_; }
    std::string_view name() const { return name_; }
    /// The class ("VB.CommandButton"), for Properties the GUID; either may be missing.
    std::string_view type() const { return type_; }
    void name(std::string_view newName);

    /// The literal of a property as it stands in the file.
    std::optional<std::string> literal(std::string_view key) const;
    /// The word behind the "'" of a property's line, "" for none.
    std::string comment(std::string_view key) const;
    /// Writes a literal and its comment (the word behind "'", empty for none). A property that is there keeps
    /// its spelling, its layout and, with the same literal, its comment. A new one gets a line in the
    /// designer's layout: in an Object in the alphabet's order, else at the end. True when the text changed.
    bool set(std::string_view key, std::string_view literal, std::string_view comment = {});
    /// Takes a property, or a nested Properties block, out. True when there was one.
    bool remove(std::string_view key);
    /// True when the property was put there by `set`, not read from the file.
    bool wasAdded(std::string_view key) const;
    void eachProperty(const std::function<void(std::string_view key, std::string_view literal)>& see) const;

    /// Each property of this block and of all within it, with its line; `line` is that of the block's first line and
    /// then of the one behind its last.
    using SeeLine =
        std::function<void(const FormBlock& owner, std::string_view key, std::string_view literal, std::size_t)>;
    void eachPropertyWithin(const SeeLine& see, std::size_t& line) const;

    /// In this block and all within it, references to the resource file of one name become references to another.
    /// True when the text changed.
    bool renameResources(std::string_view oldFile, std::string_view newFile);

    /// The nested Properties block of a name, or null.
    std::shared_ptr<FormBlock> properties(std::string_view name) const;
    std::shared_ptr<FormBlock> addProperties(std::string_view name, std::string_view guid = {});
    /// The nested Object blocks in the order of the file.
    Blocks objects() const;
    /// A new Object block before the others, where the designer writes the topmost control.
    std::shared_ptr<FormBlock> addObject(std::string_view type, std::string_view name);
    /// Takes a nested block out. Gives its place, nothing when it is not one of this block's own.
    std::optional<std::size_t> removeObject(const FormBlock& block);
    /// Puts a nested block that was taken out back to its place, or to the end where that is gone.
    void restoreObject(std::shared_ptr<FormBlock> block, std::size_t place);

    void writeTo(std::string& out) const;
    std::size_t lineCount() const;

    // For the reader: lines in the order of the file.
    void appendLine(std::string_view line);
    void appendBlock(std::shared_ptr<FormBlock> block);
    void close(std::string_view lastLine) { lastLine_ = lastLine; }

private:
    struct Item {
        std::string line;                 // empty for a block
        std::string key;                  // folded name of a property or Properties block, else empty
        std::shared_ptr<FormBlock> block; // a nested block
        bool added = false;
        bool isObject() const { return block && block->kind_ == Kind::Object; }
    };
    using Items = std::vector<std::unique_ptr<Item>>;

    Item* find(std::string_view key) const;
    Items::iterator placeFor(std::string_view foldedKey);
    void insert(Items::iterator at, std::unique_ptr<Item> item);
    void append(std::unique_ptr<Item> item);
    void ensureLineEnds();
    std::string newLine(std::string_view text) const;

    Kind kind_;
    std::string firstLine_, lastLine_;
    std::string name_, type_;
    Items items_;
    mutable std::unordered_map<std::string, Item*> index_;
    mutable bool indexed_ = false;
};

} // namespace host
