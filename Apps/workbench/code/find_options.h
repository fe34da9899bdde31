#pragma once
// The row of the find bar with the scope and the options of the search.
#include "Apps/workbench/code/code_finder.h"
#include <QWidget>

class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;

namespace workbench {

/// Starts with the options of the user's settings.
class FindOptionsRow final : public QWidget {
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
    void restore();

    QComboBox* scope_;
    QCheckBox *matchCase_, *wholeWord_, *asPattern_;
};

/// The layout and the label of each row of the find bar.
QHBoxLayout* findRowOf(QWidget* widget);
QLabel* findLabel(const char* caption, QWidget* buddy);

} // namespace workbench
