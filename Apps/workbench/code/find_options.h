#pragma once
// The row of the find bar with the scope and the options of the search.
#include "Apps/workbench/code/code_finder.h"
#include "Apps/workbench/code/find_row.h"

class QCheckBox;
class QComboBox;

namespace workbench {

/// Starts with the options of the user's settings.
class FindOptionsRow final : public FindRow {
public:
    FindOptionsRow();

    FindOptions options() const;
    FindScope scope() const;
    void setScope(FindScope scope);
    /// The scope within a sentence: "current module".
    const char* scopeName() const;
    /// Stores the options in the user's settings.
    void store() const;

private:
    explicit FindOptionsRow(QComboBox* scope);
    void restore();

    QComboBox* scope_;
    QCheckBox *matchCase_, *wholeWord_, *asPattern_;
};

} // namespace workbench
