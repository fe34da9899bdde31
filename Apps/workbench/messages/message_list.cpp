#include "Apps/workbench/messages/message_list.h"
#include "Add-in/build/messages/message_grid.h"
#include "Apps/workbench/base/text.h"
#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>

namespace workbench {

namespace {

using Grid = fernwick::MessageGrid;

constexpr auto kLongNumber = "00000";

/// The document estimates heights from the length of the text. This makes rows higher that need more because of word
/// wrap or line breaks. Only visible rows are measured.
class MessageCells final : public QStyledItemDelegate {
public:
    explicit MessageCells(QTreeView* list) : QStyledItemDelegate(list), list_(*list) {}

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const override {
        constexpr int kMostHeight = 10'000, kPadding = 2;
        const int margin = list_.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list_) + 1;
        const QRect cell(0, 0, list_.columnWidth(index.column()) - 2 * margin, kMostHeight);
        const auto needed = list_.fontMetrics().boundingRect(cell, Qt::TextWordWrap, index.data().toString()).height();
        return {0, std::max(needed + 2 * kPadding, index.data(Qt::SizeHintRole).toSize().height())};
    }

private:
    const QTreeView& list_;
};

/// Keys that are also shortcuts of the window.
bool isOurs(const QKeyEvent& key) {
    return key.matches(QKeySequence::Copy) || key.matches(QKeySequence::SelectAll) || key.key() == Qt::Key_F1;
}

} // namespace

MessageList::MessageList() {
    setObjectName("msgGrid");
    setAccessibleName("Messages");
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setWordWrap(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setIconSize({16, 16});
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    setItemDelegateForColumn(Grid::MessageColumn, new MessageCells(this));
    header()->setMinimumSectionSize(1);
    header()->setSectionResizeMode(QHeaderView::Fixed);
    header()->setStretchLastSection(true);
    header()->setSectionsMovable(false);
    header()->setSortIndicatorClearable(true);
    header()->setSortIndicator(-1, Qt::AscendingOrder);
}

bool MessageList::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && isOurs(static_cast<QKeyEvent&>(*event))) {
        event->accept();
        return true;
    }
    return QTreeView::event(event);
}

void MessageList::keyPressEvent(QKeyEvent* event) {
    if (!pressed(*event)) QTreeView::keyPressEvent(event);
}

void MessageList::changeEvent(QEvent* event) {
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::FontChange) fontChanged();
}

void MessageList::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    resized();
}

int MessageList::leastWidth(int column) const {
    const auto text = model()->headerData(column, Qt::Horizontal).toString();
    if (text.isEmpty()) return 0;
    const auto font = model()->headerData(column, Qt::Horizontal, Qt::FontRole).value<QFont>();
    const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header());
    const bool isSorted = header()->sortIndicatorSection() == column;
    const int mark = isSorted ? style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, header()) + margin : 0;
    const int cellMargin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    return std::max(QFontMetrics(font).horizontalAdvance(text) + 2 * margin + mark,
                    fontMetrics().horizontalAdvance(kLongNumber) + 2 * cellMargin);
}

fernwick::TextExtent MessageList::Texts::GetTextExtentPoint32(const std::string& text) const noexcept {
    const auto metrics = list_.fontMetrics();
    return {metrics.horizontalAdvance(qt(text)), metrics.height()};
}

} // namespace workbench
