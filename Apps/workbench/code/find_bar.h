#pragma once
// The bar below the code windows that finds and replaces.
#include "Apps/workbench/base/run.h"
#include "Apps/workbench/code/code_finder.h"
#include "Apps/workbench/code/code_windows.h"
#include <QWidget>
#include <functional>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

namespace workbench {

class FindBar final : public QWidget {
public:
    /// Hidden until it is opened. The code windows outlive it.
    FindBar(CodeWindows& code, Run run);

    /// Comes up with the selection, where it is a part of one line, as what to look for.
    void open(bool replacing);
    /// Looks for the same once more; comes up where there is nothing to look for yet.
    void findAgain(bool backwards);
    /// Shows an error below the fields, and the bar if it is hidden.
    void showError(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* findRow();
    QWidget* replaceRow();
    QWidget* optionRow();
    void restoreOptions();
    void storeOptions() const;

    CodePattern pattern() const;
    FindScope scope() const;
    bool canLookFor(const CodePattern& pattern);
    void say(const QString& text, bool isError = false);
    void bringUp(const CodePlace& place);
    void replace();
    void replaceAll();

    CodeWindows& code_;
    Run run_;
    QLineEdit *what_, *with_;
    QCheckBox *matchCase_, *wholeWord_, *asPattern_;
    QComboBox* scope_;
    QLabel* said_;
    QWidget* replacing_;
};

} // namespace workbench
