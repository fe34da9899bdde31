#pragma once
// All places in a program that mean the same as a name at one place.
#include "Components/QLToolkit/insight/name_uses.h"

namespace qltoolkit {

struct Reference {
    NamePlace place;
    bool isDeclaration = false;
    bool isPart = false;    ///< of a handler's name
    std::uint32_t line = 0; ///< of the code window, from 1; 0 where it is hidden
};

/// What can be found out about the name at a place.
class References {
public:
    /// Binds the whole program; that takes as long as compiling it. Afterwards nothing is found if it was stopped. Names
    /// in `alsoUsed` are collected, too.
    References(const ProgramInput& input, std::size_t source, Pos pos, const Following& following = {},
               std::vector<std::string> alsoUsed = {});

    /// The name as it is written at the place; "" if there is none.
    [[nodiscard]] const std::string& name() const { return name_; }
    /// What it means; null if that is not known.
    [[nodiscard]] const NameMeaning* meaning() const { return target_ ? &uses_->meaning(*target_) : nullptr; }
    /// Sorted by source and position. Names in comments and strings are not among them.
    [[nodiscard]] const std::vector<Reference>& all() const { return all_; }
    /// All uses of names that are spelled alike.
    [[nodiscard]] const NameUses& uses() const { return *uses_; }
    [[nodiscard]] const Snapshot& snapshot() const { return *snapshot_; }
    /// The line of the code window, from 1, that shows a place; 0 for none.
    [[nodiscard]] std::uint32_t lineOf(const NamePlace& place) const;

private:
    void findTarget(std::size_t source, Pos pos);
    [[nodiscard]] bool declares(const NamePlace& place) const;

    std::string name_;
    std::unique_ptr<NameUses> uses_;
    std::unique_ptr<Snapshot> snapshot_;
    const NameUse* target_ = nullptr;
    std::vector<const Module*> trees_; // of each source; null for one that could not be read
    std::vector<Reference> all_;
};

/// Returns the name around a position of a source, as UTF-8; "" if there is none.
[[nodiscard]] std::string nameAround(const SourceText& source, Pos pos);

} // namespace qltoolkit
