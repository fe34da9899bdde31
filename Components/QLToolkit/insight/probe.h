#pragma once
// What an expression means at the end of a procedure that is being typed.
#include "Components/QLToolkit/insight/snapshot.h"
#include <functional>
#include <optional>

namespace qltoolkit {

/// A place in the code of a module of the snapshot.
struct CodePlace {
    int module = 0;
    /// The text from the first line of the procedure to the cursor, as UTF-8. Outside of procedures, from the start of the
    /// statement.
    std::string_view before;
};

/// The use of a name in a probe.
struct ProbedUse {
    Pos pos;
    const Entity* entity;
};

/// Binds the text of a procedure. What it found is valid while it lives and no other probe is made.
class Probe {
public:
    /// Binds the lines before `line`, which begins at `place.before[lineBegin]`, and then this line instead.
    Probe(Snapshot& snapshot, const CodePlace& place, std::size_t lineBegin, std::string_view line);
    /// Binds a whole procedure.
    Probe(Snapshot& snapshot, int module, std::string_view procedure);

    [[nodiscard]] bool isBound() const { return isBound_; }
    /// What the name that is used last means.
    [[nodiscard]] const Entity* lastName() const { return uses_.empty() ? nullptr : declared(uses_.back().entity); }
    /// What the name at a position of the procedure's text means.
    [[nodiscard]] const Entity* nameAt(std::size_t pos) const;
    [[nodiscard]] const std::vector<ProbedUse>& uses() const { return uses_; }
    /// What is before the point of the last member.
    [[nodiscard]] const std::optional<MemberBase>& base() const { return base_; }
    [[nodiscard]] const std::deque<Entity>& locals() const { return snapshot_.names().all(); }
    [[nodiscard]] const SourceText& source() const { return *source_; }
    [[nodiscard]] const SourceModule& module() const { return *module_; }

private:
    class Sink;
    [[nodiscard]] const Entity* declared(const Entity* entity) const;
    void bind(int module, std::string text, std::size_t lineBegin);

    Snapshot& snapshot_;
    std::unique_ptr<SourceText> source_;
    std::unique_ptr<Module> tree_;
    std::unique_ptr<SourceModule> module_;
    Entity procedure_;
    std::vector<ProbedUse> uses_;
    std::optional<MemberBase> base_;
    bool isBound_ = false;
};

} // namespace qltoolkit
