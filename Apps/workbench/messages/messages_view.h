#pragma once
// The messages window, drawn from the add-in's document.
#include "Apps/workbench/base/run.h"
#include "Apps/workbench/messages/message_filter.h"
#include "Apps/workbench/messages/message_rows.h"
#include "Apps/workbench/options/key_option.h"
#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <functional>

class QAction;
class QLabel;

namespace workbench {

class MessageBar;
class MessageList;

/// Draws many changes together. Filter and order belong to the view; it addresses messages by the document's numbers.
class MessagesView final : public QWidget {
public:
    using Document = fernwick::udocCompileMsgs;

    MessagesView(basic::Ref<Document> document, Run run);
    ~MessagesView() override;

    const basic::Ref<Document>& document() const { return document_; }
    /// Whether the status is that of a run. Otherwise it is not shown: a project that was just opened, and a run that set
    /// no outcome, would seem to be compiling.
    std::function<bool()> isStatusCurrent = [] { return true; };
    /// Draws the messages when Qt's loop turns.
    void drawSoon();
    /// Called after the rows were drawn again.
    std::function<void()> drawn = [] {};
    /// The commands that go to the next and previous message, which the window adds to its actions.
    const QList<QAction*>& walk() const { return walk_; }
    /// Their keys, in the same order.
    static std::vector<KeyOption> walkKeys();
    /// Gives them the keys of the user's settings.
    void showKeys();

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void putTogether();
    void addCommands();
    QAction* addCommand(const char* text, const char* name, std::function<void()> act);
    void watchDocument();
    void draw();
    void layOut();
    void layOutStatus();
    void showChosen();
    bool pressed(const QKeyEvent& key);
    void goTo(const QModelIndex& index);
    void step(int by);
    void help();
    void copy();
    void copyRows(const QModelIndexList& shown);
    std::int32_t numberOf(const QModelIndex& index) const;
    void enableCommands();
    void press(int keyCode, int shift);

    basic::Ref<Document> document_;
    Run run_;
    MessageRows rows_;
    MessageFilter shown_;
    MessageBar* bar_;
    MessageList* list_;
    QWidget* statusLine_;
    QLabel* status_;
    QLabel* statusText_;
    QAction *goTo_ = nullptr, *help_ = nullptr, *copy_ = nullptr, *copyAll_ = nullptr;
    QList<QAction*> walk_;
    QTimer redraw_;
    QElapsedTimer sinceDrawn_;
    std::vector<fernwick::Subscription> watches_;
};

} // namespace workbench
