#pragma once
// The list of the messages.
#include "Add-in/platform/device_context.h"
#include <QTreeView>
#include <functional>

namespace workbench {

class MessageList final : public QTreeView {
public:
    MessageList();

    /// What texts measure here.
    const fernwick::DeviceContext& deviceContext() const { return texts_; }
    /// Takes a key that means something to the messages; false leaves it to the list.
    std::function<bool(const QKeyEvent&)> pressed = [](const QKeyEvent&) { return false; };
    /// Texts measure otherwise than before.
    std::function<void()> fontChanged = [] {};
    /// The room for the rows is another one.
    std::function<void()> resized = [] {};
    /// Rows may have other heights than before.
    void layOutAgain() { scheduleDelayedItemsLayout(); }

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Texts final : public fernwick::DeviceContext {
    public:
        explicit Texts(const QWidget& list) : list_(list) {}
        fernwick::TextExtent GetTextExtentPoint32(const std::string& text) const noexcept override;

    private:
        const QWidget& list_;
    };

    Texts texts_{*this};
};

} // namespace workbench
