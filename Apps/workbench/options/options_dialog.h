#pragma once
// Tools > Options: the program's own settings.
#include "Apps/workbench/options/key_option.h"
#include <QDialog>
#include <functional>

class QDialogButtonBox;
class QLabel;
class QTabWidget;

namespace workbench {

class ColoursPage;
class OptionsPage;

class OptionsDialog final : public QDialog {
public:
    /// `applied` is called after the options were stored, by OK or Apply.
    OptionsDialog(std::vector<KeyOption> keys, std::function<void()> applied, QWidget* parent);

    ColoursPage& colours() { return *colours_; }

private:
    void addPage(OptionsPage& page, const QString& title);
    void addButtons();
    OptionsPage& pageInFront() const;
    void changed();
    void enableButtons();
    void apply();

    std::function<void()> applied_;
    QTabWidget* tabs_;
    QLabel* problem_;
    QDialogButtonBox* buttons_;
    ColoursPage* colours_;
    std::vector<OptionsPage*> pages_;
    bool isChanged_ = false;
};

} // namespace workbench
