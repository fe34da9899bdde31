#pragma once
// The bar above the messages: counts them and filters them.
#include <QPixmap>
#include <QWidget>
#include <functional>

class QLabel;
class QLineEdit;
class QToolButton;

namespace workbench {

class MessageBar final : public QWidget {
public:
    /// Called for what the user wants to see.
    struct Callbacks {
        std::function<void(int type, bool shown)> showType;
        std::function<void(const QString&)> showText;
    };

    explicit MessageBar(Callbacks callbacks);

    QLineEdit& filter() { return *filter_; }
    void setPictures(const QPixmap& error, const QPixmap& warning);
    /// `shown` of `all` messages pass the filter.
    void showCounts(int errors, int warnings, int shown, int all);

private:
    QToolButton* addKind(int type, const char* name, const char* toolTip);

    Callbacks callbacks_;
    QToolButton* errors_;
    QToolButton* warnings_;
    QLineEdit* filter_;
    QLabel* shown_;
};

} // namespace workbench
