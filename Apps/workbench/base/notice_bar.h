#pragma once
#include <QFrame>
#include <QTimer>
#include <functional>
#include <vector>

class QHBoxLayout;
class QLabel;

namespace workbench {

/// A message that needs no answer, in a bar of the window, with actions that the user may take.
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

private:
    QLabel* text_;
    QHBoxLayout* offers_;
    QTimer over_;
};

} // namespace workbench
