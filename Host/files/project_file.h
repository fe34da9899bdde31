#pragma once
// A project file (.vbp) as its lines with an index over them. Setting a value edits its line, so what nobody touched
// stays as it was, whatever is wrong with it.
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
    std::string name;     ///< what stands before ";" in a Module or Class line, else empty
    std::string value;    ///< the path with "\" as it is written; the whole value of a Reference or Object
    std::size_t line = 0; ///< its line in the file, from 1

    friend bool operator==(const ProjectMember&, const ProjectMember&) = default;
};

class ProjectFile {
public:
    /// A member's line in this file; good until that member is removed.
    using Place = std::list<TextLine>::iterator;

    /// Takes any bytes: what is not understood is kept. `codePage` is the encoding of this file.
    ProjectFile(std::string_view bytes, basic::CodePage codePage);
    ProjectFile(const ProjectFile&) = delete;
    ProjectFile& operator=(const ProjectFile&) = delete;

    std::string bytes() const;

    /// True when there is at least one line that a project begins with: its type, a member or a setting.
    bool looksLikeProject() const noexcept { return known_; }

    /// A setting's value without its delimiters; nothing for a setting that is not there. The first line counts.
    std::optional<std::string> setting(std::string_view key) const;

    /// Sets a setting in its line; one that is absent gets its place in the order of the IDE.
    /// Error 5, and nothing changed: a line break in the value, a character that the code page lacks.
    void setSetting(std::string_view key, std::string_view value);

    struct Member {
        Place place;
        ProjectMember content;
    };
    /// All members in the order of the file.
    std::vector<Member> members();

    /// Adds a member after the last one. Errors as for setSetting.
    Place addMember(MemberKind kind, std::string_view name, std::string_view value);
    /// Writes a member's line anew, its key as it is spelt. Errors as for setSetting.
    void setMember(Place member, std::string_view name, std::string_view value);
    void removeMember(Place member);

    /// A value of a section, letter for letter. Error 5 when section or key is absent; an empty value is a value.
    std::string readProperty(std::string_view section, std::string_view key) const;

    /// Sets a value of a section; a new key stands behind the section's last, a new section at the end behind one blank
    /// line. Error 5, and nothing changed: a line break anywhere, a character that the code page lacks, an empty section
    /// or key, a key with "=" or with "[" in front (they could not be read back).
    /// Returns whether the file changed.
    bool writeProperty(std::string_view section, std::string_view key, std::string_view value);

private:
    using Index = std::unordered_map<std::string, Place>;
    struct Section {
        Place last;
        Index values;
    };

    void indexLine(Place line, Section*& current);
    void indexKeyLine(Place line, Section* current);
    std::string lineOf(std::string_view key, std::string_view value) const;
    void addSetting(std::size_t order, std::string_view key, std::string_view value);
    Place insertAfter(std::optional<Place> line, std::string text);
    std::optional<Place> lineBefore(std::size_t order) const;
    std::optional<Place> typeLine() const;
    Place appendSection(std::string_view section);
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
