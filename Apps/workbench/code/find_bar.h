#pragma once
// The bar for finding and replacing below the code windows.
#include "Apps/workbench/base/run.h"
#include "Apps/workbench/code/code_finder.h"
#include "Apps/workbench/code/code_windows.h"
#include <QWidget>
#include <functional>

class QLabel;
class QLineEdit;

namespace workbench {

class FindOptionsRow;

class FindBar final : public QWidget {
public:
    /// Creates the bar hidden. The code windows outlive it.
    FindBar(CodeWindows& code, Run run);

    /// Shows the bar. A selection within one line becomes the text to find.
    void open(bool replacing);
    /// Shows the bar for a search through all projects.
    void openForAllProjects();
    /// Lists all matches of the text to find.
    void findAll();
    /// Called to list the matches.
    std::function<void(const CodePattern& pattern, const QString& what, std::vector<Stretch> where)> list =
        [](const auto&...) {};
    /// Returns where a search begins that no code window determines; without a component if there is none.
    std::function<CodePlace()> start = [] { return CodePlace{}; };
    /// Finds the same text again; shows the bar if there is no text yet.
    void findAgain(bool backwards);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* findRow();
    QWidget* replaceRow();

    CodePattern pattern() const;
    bool canLookFor(const CodePattern& pattern);
    void say(const QString& text, bool isError = false);
    void bringUp(const CodePlace& place);
    void replace();
    void replaceAll();

    CodeWindows& code_;
    Run run_;
    QLineEdit *what_, *with_;
    FindOptionsRow* options_;
    QLabel* said_;
    QWidget* replacing_;
};

} // namespace workbench
