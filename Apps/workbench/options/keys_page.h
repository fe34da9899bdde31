#pragma once
#include "Apps/workbench/options/key_option.h"
#include "Apps/workbench/options/options_page.h"

class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace workbench {

class KeyField;

/// A table of the commands with their keys. A key of two commands is marked at both and cannot be stored.
class KeysPage final : public OptionsPage {
public:
    explicit KeysPage(std::vector<KeyOption> options);

    void showStored() override;
    void showUsual() override;
    void store() const override;
    QString problem() const override;

private:
    void putTogether();
    void fill();
    /// The number of the current command; -1 for none.
    int current() const;
    void choose(const QKeySequence& key);
    void filter(const QString& text);
    void showKeys();
    void showRow(std::size_t command);
    void showCurrent();
    QString conflictOf(std::size_t command) const;

    std::vector<KeyOption> options_;
    std::vector<QKeySequence> chosen_;
    QLineEdit* filter_;
    QTreeWidget* list_;
    KeyField* key_;
    QPushButton* reset_;
};

} // namespace workbench
