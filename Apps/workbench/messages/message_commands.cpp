// The commands of the messages window.
#include "Apps/workbench/messages/message_bar.h"
#include "Apps/workbench/messages/message_copy.h"
#include "Apps/workbench/messages/message_list.h"
#include "Apps/workbench/messages/messages_view.h"
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>

namespace workbench {

namespace {

using Grid = fernwick::MessageGrid;

QAction* separatorAction(QObject* owner) {
    auto* const line = new QAction(owner);
    line->setSeparator(true);
    return line;
}

} // namespace

QAction* MessagesView::addCommand(const char* text, const char* name, std::function<void()> act) {
    auto* const action = new QAction(text, this);
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, [act = std::move(act)] { act(); });
    list_->addAction(action);
    return action;
}

/// The list handles the keys that are shortcuts of the window too. Only the keys to the next and previous message are
/// shortcuts of the window.
void MessagesView::addCommands() {
    goTo_ = addCommand("&Go To\tEnter", "goToMessage", [this] { goTo(list_->currentIndex()); });
    help_ = addCommand("&Help on This Message\tF1", "helpOnMessage", [this] { help(); });
    list_->addAction(separatorAction(this));
    copy_ = addCommand("&Copy\tCtrl+C", "copyMessages", [this] { copy(); });
    copyAll_ = addCommand("Copy &All", "copyAllMessages", [this] {
        QModelIndexList all;
        for (int row = 0; row < shown_.rowCount(); ++row) all << shown_.index(row, Grid::TitleColumn);
        copyRows(all);
    });
    list_->addAction(separatorAction(this));
    walk_ << addCommand("&Next Message", "nextMessage", [this] { step(+1); })
          << addCommand("&Previous Message", "previousMessage", [this] { step(-1); });
    showKeys();
}

void MessagesView::showKeys() {
    const auto keys = walkKeys();
    for (qsizetype i = 0; i < walk_.size(); ++i) walk_[i]->setShortcut(keys[std::size_t(i)].stored());
}

std::vector<KeyOption> MessagesView::walkKeys() {
    return {{"messages/nextKey", "Messages", "Next Message", Qt::Key_F6},
            {"messages/previousKey", "Messages", "Previous Message", Qt::SHIFT | Qt::Key_F6}};
}

void MessagesView::enableCommands() {
    const auto current = list_->currentIndex();
    const bool hasRows = shown_.rowCount() > 0;
    goTo_->setEnabled(current.isValid());
    help_->setEnabled(!current.siblingAtColumn(Grid::ErrorColumn).data().toString().isEmpty());
    copy_->setEnabled(current.isValid());
    copyAll_->setEnabled(hasRows);
    for (auto* action : walk_) action->setEnabled(hasRows);
}

std::int32_t MessagesView::numberOf(const QModelIndex& index) const {
    return index.isValid() ? rows_.numberOf(shown_.mapToSource(index).row()) : 0;
}

bool MessagesView::pressed(const QKeyEvent& key) {
    const auto plain = key.modifiers() & ~Qt::KeypadModifier;
    if (key.matches(QKeySequence::Copy))
        copy();
    else if (key.key() == Qt::Key_F1 && plain == Qt::NoModifier)
        help();
    else if ((key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) && plain == Qt::NoModifier)
        goTo(list_->currentIndex());
    else
        return false;
    return true;
}

/// Down and Enter move from the filter to the filtered list.
bool MessagesView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape) bar_->filter().clear();
        if (key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape) {
            if (!list_->currentIndex().isValid()) list_->setCurrentIndex(shown_.index(0, Grid::TitleColumn));
            list_->setFocus();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void MessagesView::goTo(const QModelIndex& index) {
    if (const auto number = numberOf(index); number > 0) run_([&] { document_->gotoMessage(number); });
}

/// Moves in the order of the list and starts again at its other end.
void MessagesView::step(int by) {
    draw();
    const int rows = shown_.rowCount();
    if (rows == 0) return;
    const auto current = list_->currentIndex();
    const int from = current.isValid() ? current.row() : by > 0 ? -1 : 0;
    const auto next = shown_.index((from + by + rows) % rows, Grid::TitleColumn);
    list_->setCurrentIndex(next);
    run_([&] { document_->showSource(numberOf(next)); });
}

void MessagesView::help() { press(fernwick::vbKeyF1, 0); }

void MessagesView::press(int keyCode, int shift) {
    run_([&] {
        document_->select(numberOf(list_->currentIndex()));
        document_->msgGrid_KeyDown(keyCode, shift);
    });
}

void MessagesView::copy() {
    auto selected = list_->selectionModel()->selectedRows(Grid::TitleColumn);
    std::sort(selected.begin(), selected.end());
    if (selected.size() > 1) return copyRows(selected);
    if (selected.size() == 1) list_->selectionModel()->setCurrentIndex(selected.front(), QItemSelectionModel::NoUpdate);
    press(fernwick::vbKeyC, fernwick::vbCtrlMask);
}

void MessagesView::copyRows(const QModelIndexList& shown) {
    std::vector<std::int32_t> numbers;
    for (const auto& index : shown) numbers.push_back(numberOf(index));
    QGuiApplication::clipboard()->setMimeData(copyOf(*document_, numbers).release());
}

} // namespace workbench
