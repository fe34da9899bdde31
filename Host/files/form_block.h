#pragma once
// A block of a form (Begin to End, or BeginProperty to EndProperty) as a tree over the lines of the file.
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace host {

/// Holds its own lines, so unedited lines are written back as they were read. Property names are matched ignoring case.
/// If a property occurs twice, the last one counts.
class FormBlock {
public:
    enum class Kind {
        Object,    ///< Begin .. End: a form, a control, a menu
        Properties ///< BeginProperty .. EndProperty: a font, a collection, a member of one
    };
    using Blocks = std::vector<std::shared_ptr<FormBlock>>;

    /// A line or a nested block.
    struct Item {
        std::string line;                 // empty for a block
        std::string key;                  // folded name of a property or Properties block, else empty
        std::shared_ptr<FormBlock> block; // a nested block
        bool added = false;
        bool isObject() const { return block && block->kind_ == Kind::Object; }
        bool operator==(const Item&) const = default;
    };
    /// All lines but those of nested blocks.
    struct Content {
        std::string firstLine, lastLine;
        std::vector<Item> items;
        bool operator==(const Content&) const = default;
    };

    FormBlock(Kind kind, std::string firstLine);

    Kind kind() const { return kind_; }
    std::string_view name() const { return name_; }
    /// The class ("VB.CommandButton"), or for Properties the GUID; may be empty.
    std::string_view type() const { return type_; }
    void name(std::string_view newName);

    /// Returns the literal of a property as written.
    std::optional<std::string> literal(std::string_view key) const;
    /// Returns the word after "'" in a property's line, "" for none.
    std::string comment(std::string_view key) const;
    /// Writes a literal and its comment. An existing property keeps its spelling and layout and, if the literal is the
    /// same, its comment. A new one gets a line in the designer's layout: in alphabetical order in an Object, otherwise
    /// at the end. Returns true if the text changed.
    bool set(std::string_view key, std::string_view literal, std::string_view comment = {});
    /// Removes a property or a nested Properties block. Returns true if there was one.
    bool remove(std::string_view key);
    /// True if the property was added by `set` and not read from the file.
    bool wasAdded(std::string_view key) const;
    void eachProperty(const std::function<void(std::string_view key, std::string_view literal)>& see) const;

    /// Visits the properties of this block and of all blocks within it. `line` is the line number of the block's first
    /// line and, on return, of the line after its last.
    using SeeLine =
        std::function<void(const FormBlock& owner, std::string_view key, std::string_view literal, std::size_t)>;
    void eachPropertyWithin(const SeeLine& see, std::size_t& line) const;

    /// Redirects references to a resource file, in this block and all blocks within it. Returns true if the text
    /// changed.
    bool renameResources(std::string_view oldFile, std::string_view newFile);

    /// Returns a nested Properties block, or null.
    std::shared_ptr<FormBlock> properties(std::string_view name) const;
    std::shared_ptr<FormBlock> addProperties(std::string_view name, std::string_view guid = {});
    /// The nested Object blocks in the order of the file.
    Blocks objects() const;
    /// Adds an Object block before the others, where the designer writes the topmost control.
    std::shared_ptr<FormBlock> addObject(std::string_view type, std::string_view name);
    /// Removes a directly nested block. Returns its position, or nothing if there is no such block.
    std::optional<std::size_t> removeObject(const FormBlock& block);
    /// Puts a removed block back at its position, or at the end if the block is shorter now.
    void restoreObject(std::shared_ptr<FormBlock> block, std::size_t place);

    /// Indents this block by more levels, or fewer if negative. Nested Object blocks keep theirs.
    void indent(int levels);
    /// False for a block that the file ends in: lines after it would become part of it.
    bool isClosed() const { return !lastLine_.empty(); }
    /// Visits all nested blocks, each before those within it.
    void eachBlockWithin(const std::function<void(const std::shared_ptr<FormBlock>&)>& see) const;
    Content content() const;
    void content(const Content& content);

    void writeTo(std::string& out) const;
    std::size_t lineCount() const;

    // For the reader: lines in the order of the file.
    void appendLine(std::string_view line);
    void appendBlock(std::shared_ptr<FormBlock> block);
    void close(std::string_view lastLine) { lastLine_ = lastLine; }

private:
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
