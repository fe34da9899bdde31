#pragma once
#include <QFrame>
#include <QTimer>
#include <functional>
#include <vector>

class QBoxLayout;
class QHBoxLayout;
class QLabel;
class QToolButton;

namespace workbench {

/// A message that needs no answer, in a bar of the window, with actions that the user may take. They are below the
/// text where the bar is too narrow for both.
class NoticeBar final : public QFrame {
public:
    struct Offer {
        QString text;
        std::function<void()> act;
    };

    /// Hidden until there is a message.
    NoticeBar();

    /// Replaces the previous message. One without offers disappears after a while.
    void showText(const QString& text, const std::vector<Offer>& offers = {});

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void arrange();

    QLabel* text_;
    QBoxLayout* parts_;
    QHBoxLayout* offers_;
    QToolButton* close_;
    QTimer over_;
};

} // namespace workbench
