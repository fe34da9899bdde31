#pragma once
// The window in which a list or a text of several lines is edited.
#include "Apps/workbench/properties/value_popup.h"
#include <QString>
#include <functional>

class QPlainTextEdit;

namespace workbench {

/// Enter and a click elsewhere accept the text, Ctrl+Enter begins a new line, Esc rejects it.
class LinesPopup final : public ValuePopup {
public:
    using Accepted = std::function<void(const QString&)>;

    LinesPopup(QWidget* parent, const QString& name, const QString& lines, Accepted accepted);

    QPlainTextEdit& lines() { return *lines_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QPlainTextEdit* lines_;
    QString before_;
    Accepted accepted_;
};

} // namespace workbench
