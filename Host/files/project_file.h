#pragma once
// A project file (.vbp) as its lines, with an index over them. Setting a value edits its line; all other lines stay
// unchanged, even faulty ones.
#include "Basic/code_page.h"
#include "Host/files/project_keys.h"
#include "Host/files/text_file.h"
#include <cstddef>
#include <list>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace host {

/// One member line: a component, a reference, a control library or a related document.
struct ProjectMember {
    MemberKind kind = MemberKind::Form;
    std::string name;     ///< the text before ";" in a Module or Class line, otherwise empty
    std::string value;    ///< the path as written, with "\"; for a Reference or Object the whole value
    std::size_t line = 0; ///< its line in the file, from 1

    friend bool operator==(const ProjectMember&, const ProjectMember&) = default;
};

class ProjectFile {
public:
    /// A member's line in this file; valid until that member is removed.
    using Place = std::list<TextLine>::iterator;

    /// Takes any bytes and keeps lines it does not understand. `codePage` is the encoding of this file.
    ProjectFile(std::string_view bytes, basic::CodePage codePage);
    ProjectFile(const ProjectFile&) = delete;
    ProjectFile& operator=(const ProjectFile&) = delete;

    std::string bytes() const;

    /// True if there is at least one known line: the type, a member or a setting.
    bool looksLikeProject() const noexcept { return known_; }

    /// Returns a setting's value without its delimiters; nothing if there is none. The first of several
    /// lines counts.
    std::optional<std::string> setting(std::string_view key) const;

    /// Sets a setting in its line. A missing one is inserted in the order of the IDE.
    /// Error 5, without a change: a line break in the value, a character that the code page lacks.
    void setSetting(std::string_view key, std::string_view value);

    /// Removes the line of a setting, if there is one.
    void removeSetting(std::string_view key);

    /// Reads the same bytes in another page. Places remain valid.
    void codePage(basic::CodePage page);

    struct Member {
        Place place;
        ProjectMember content;
    };
    /// Returns all members in the order of the file.
    std::vector<Member> members();

    /// Adds a member after the last one. Errors as for setSetting.
    Place addMember(MemberKind kind, std::string_view name, std::string_view value);
    /// Rewrites a member's line; its key keeps its spelling. Errors as for setSetting.
    void setMember(Place member, std::string_view name, std::string_view value);
    void removeMember(Place member);

    /// Returns a value of a section exactly as written, possibly empty. Error 5 if there is no such section or key.
    std::string readProperty(std::string_view section, std::string_view key) const;

    /// Sets a value of a section. A new key is added after the last one of the section, a new section at the end after
    /// one blank line. Returns true if the file changed. Error 5, without a change: a line break in any argument, a
    /// character that the code page lacks, an empty section or key, a key with "=" or an initial "[" (it could not be
    /// read back).
    bool writeProperty(std::string_view section, std::string_view key, std::string_view value);
    /// Returns the text with "?" instead of line breaks and of characters that the code page lacks.
    std::string storableText(std::string_view text) const;

    const basic::CodePage& codePage() const { return codePage_; }

private:
    using Index = std::unordered_map<std::string, Place>;
    struct Section {
        Place last;
        Index values;
    };

    void indexLines();
    void indexLine(Place line, Section*& current);
    void indexKeyLine(Place line, Section* current);
    std::string lineOf(std::string_view key, std::string_view value) const;
    void addSetting(std::size_t order, std::string_view key, std::string_view value);
    Place insertAfter(std::optional<Place> line, std::string text);
    std::optional<Place> lineBefore(std::size_t order) const;
    std::optional<Place> typeLine() const;
    Place appendSection(std::string_view head);
    Section& sectionNamed(std::string_view section);
    std::string folded(std::string_view bytes) const;

    basic::CodePage codePage_;
    LineEnd ownEnd_;
    std::list<TextLine> lines_;
    std::unordered_map<std::string, Section> sections_;
    Index settings_;
    std::optional<Place> lastMember_, lastSetting_;
    bool known_ = false;
};

} // namespace host
