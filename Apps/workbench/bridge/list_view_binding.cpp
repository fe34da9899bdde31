#include "Apps/workbench/bridge/list_view_binding.h"
#include "Apps/workbench/base/text.h"
#include <QApplication>
#include <QDropEvent>
#include <QFileIconProvider>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QMimeData>
#include <QMimeDatabase>
#include <QSignalBlocker>
#include <QStyle>

namespace workbench {

namespace {

using namespace fernwick;

/// Texts that are not numbers stay as they are.
QString sizeText(const QString& bytes) {
    bool isNumber = false;
    const auto size = bytes.toLongLong(&isNumber);
    return isNumber ? QLocale().formattedDataSize(size, 1, QLocale::DataSizeTraditionalFormat) : bytes;
}

/// That of the file's kind in the desktop's theme, else the platform's.
QIcon iconOf(const QString& path) {
    const QFileInfo file(path);
    if (!file.exists()) return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    const auto kind = QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension);
    for (const auto& name : {kind.iconName(), kind.genericIconName()})
        if (QIcon::hasThemeIcon(name)) return QIcon::fromTheme(name);
    return QFileIconProvider().icon(file);
}

QTreeWidgetItem* drawnRow(const ListView& control, const ListView::Item& row) {
    auto* const item = new QTreeWidgetItem;
    for (int column = 0; column < int(row.Cells.size()); ++column) {
        const bool isSize = control.Columns()[std::size_t(column)].isSize;
        const auto cell = qt(row.Cells[std::size_t(column)]);
        item->setText(column, isSize ? sizeText(cell) : cell);
        if (isSize) item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
    if (!row.IconOf.empty()) item->setIcon(0, iconOf(qt(row.IconOf)));
    return item;
}

void showRows(const ListView& control, QTreeWidget& widget) {
    QStringList headings;
    for (const auto& column : control.Columns()) headings << qt(column.Text);
    widget.clear();
    widget.setColumnCount(int(headings.size()));
    widget.setHeaderLabels(headings);
    for (const auto& row : control.Items()) widget.addTopLevelItem(drawnRow(control, row));
    for (int column = 0; column < headings.size(); ++column)
        widget.header()->setSectionResizeMode(column,
                                              column == 0 ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
}

void showSelection(const ListView& control, QTreeWidget& widget) {
    for (int row = 0; row < int(control.Items().size()); ++row)
        widget.topLevelItem(row)->setSelected(control.Items()[std::size_t(row)].Selected);
}

void takeSelection(ListView& control, const QTreeWidget& widget) {
    QList<bool> selected;
    for (int row = 0; row < widget.topLevelItemCount(); ++row) selected << widget.topLevelItem(row)->isSelected();
    for (int row = 0; row < selected.size(); ++row)
        if (selected[row] != control.Items()[std::size_t(row)].Selected) control.Selected(row, selected[row]);
    const int current = widget.indexOfTopLevelItem(widget.currentItem());
    if (current >= 0 && selected[current]) control.ItemClick.raise(current);
}

/// Keys, focus and dropped files of a list.
class ListEvents final : public QObject {
public:
    ListEvents(ListView& control, QTreeWidget& widget, const Binding& binding)
        : QObject(&widget), control_(control), binding_(binding) {
        widget.installEventFilter(this);
        widget.viewport()->installEventFilter(this);
        widget.setAcceptDrops(control.FilesDropped.hasHandlers());
    }

private:
    bool eventFilter(QObject*, QEvent* event) override {
        switch (event->type()) {
        case QEvent::KeyRelease: return released(static_cast<const QKeyEvent&>(*event)), false;
        case QEvent::FocusIn: binding_.act([this] { control_.GotFocus.raise(); }); return false;
        case QEvent::FocusOut: return lostFocus(), false;
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop: return dropped(static_cast<QDropEvent&>(*event));
        default: return false;
        }
    }
    void released(const QKeyEvent& key) const {
        if (key.key() == Qt::Key_Delete) binding_.act([this] { control_.KeyUp.raise(ListView::kDeleteKey); });
    }
    void lostFocus() const {
        const auto* const other = QApplication::focusWidget();
        binding_.act([&] { control_.LostFocus.raise(other ? text(other->objectName()) : std::string()); });
    }
    bool dropped(QDropEvent& event) const {
        if (!event.mimeData()->hasUrls()) return false;
        event.acceptProposedAction();
        if (event.type() != QEvent::Drop) return true;
        std::vector<std::string> paths;
        for (const auto& url : event.mimeData()->urls())
            if (url.isLocalFile()) paths.push_back(text(url.toLocalFile()));
        binding_.act([&] { control_.FilesDropped.raise(paths); });
        return true;
    }

    ListView& control_;
    const Binding& binding_;
};

} // namespace

void bindListView(ListView& control, QTreeWidget& widget, Binding& binding) {
    widget.setRootIsDecorated(false);
    widget.setUniformRowHeights(true);
    widget.setSelectionMode(QAbstractItemView::ExtendedSelection);
    widget.setTextElideMode(Qt::ElideMiddle);
    widget.header()->setStretchLastSection(false);
    const auto show = [&control, &widget](ListView::Change change) {
        const QSignalBlocker ours(widget);
        if (change == ListView::Change::Rows) showRows(control, widget);
        showSelection(control, widget);
    };
    show(ListView::Change::Rows);
    binding.keep(control.changed.connect(show));
    QObject::connect(&widget, &QTreeWidget::itemSelectionChanged, &widget,
                     [&] { binding.act([&] { takeSelection(control, widget); }); });
    new ListEvents(control, widget, binding); // owned by the widget
}

} // namespace workbench
