#include "Apps/workbench/search/result_list.h"
#include "Apps/workbench/base/component_project.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/code/code_text.h"
#include "Apps/workbench/marks/placed_mark.h"
#include "Apps/workbench/search/search_texts.h"
#include "Basic/runtime_error.h"
#include <QHeaderView>
#include <QKeyEvent>

namespace workbench {

namespace {
enum ResultColumn { kFilePart, kLinePart, kTextPart, kParts };
} // namespace

class ResultList::Row final : public QTreeWidgetItem {
public:
    Row(Match match, const QString& file)
        : place(std::move(match.place)), text_(match.text.trimmed()), isDeclaration_(match.isDeclaration) {
        setText(kFilePart, file);
        setText(kTextPart, text_);
        setTextAlignment(kLinePart, Qt::AlignRight | Qt::AlignVCenter);
        showLine();
        if (isDeclaration_) look(false);
    }
    /// Finds the line again in the module's present text.
    void update(const QStringList& text) {
        const int line = lineOf({place.line, text_}, text);
        const bool isOutdated = line < 0;
        if (!isOutdated) place.line = line;
        look(isOutdated);
        setDisabledLook(isOutdated);
        showLine();
    }

    CodePlace place;

private:
    void look(bool isOutdated) {
        auto shown = font(kTextPart);
        shown.setItalic(isOutdated);
        shown.setBold(isDeclaration_);
        for (int column = 0; column < kParts; ++column) {
            setFont(column, shown);
            setToolTip(column, isOutdated ? search_texts::kOutdated : isDeclaration_ ? search_texts::kDeclaration : "");
        }
    }
    void showLine() { setText(kLinePart, QString::number(place.line + 1)); }
    void setDisabledLook(bool on) {
        const auto faint = treeWidget()->palette().brush(QPalette::Disabled, QPalette::Text);
        for (int column = 0; column < kParts; ++column) setForeground(column, on ? faint : QBrush());
    }

    QString text_;
    bool isDeclaration_;
};

ResultList::ResultList(std::function<void(const CodePlace&)> show) : show_(std::move(show)) {
    setObjectName("searchResults");
    setAccessibleName("Search results");
    setColumnCount(kParts);
    setHeaderLabels({"File", "Line", "Text"});
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    constexpr int kFileWidth = 220, kLineWidth = 60;
    header()->resizeSection(kFilePart, kFileWidth);
    header()->resizeSection(kLinePart, kLineWidth);
    connect(this, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) { choose(item); });
}

ResultList::Row* ResultList::row(int index) const { return static_cast<Row*>(topLevelItem(index)); }

void ResultList::add(std::vector<Match> matches) {
    QList<QTreeWidgetItem*> rows;
    vbide::VBComponent* last = count() == 0 ? nullptr : row(count() - 1)->place.component.shared().get();
    QString file;
    for (auto& match : matches) {
        const auto& component = match.place.component;
        if (component.shared().get() != last || file.isEmpty()) {
            modules_ += component.shared().get() != last;
            last = component.shared().get();
            const auto project = projectOf(component);
            file = (project ? qt(project->Name()) + " / " : QString()) + qt(component->Name());
        }
        rows << new Row(std::move(match), file);
    }
    const bool isFirst = count() == 0;
    addTopLevelItems(rows);
    if (isFirst && count() > 0) setCurrentItem(topLevelItem(0));
}

void ResultList::removeAll() {
    clear();
    modules_ = 0;
}

void ResultList::update(const Component& component) {
    QStringList text;
    for (int index = 0; index < count(); ++index) {
        if (row(index)->place.component != component) continue;
        if (text.isEmpty()) text = codeOf(*component->CodeModule()).split('\n');
        row(index)->update(text);
    }
}

void ResultList::remove(const std::function<bool(const Component&)>& isRemoved) {
    for (int index = count() - 1; index >= 0; --index)
        if (isRemoved(row(index)->place.component)) delete takeTopLevelItem(index);
}

void ResultList::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentItem()) return choose(currentItem());
    QTreeWidget::keyPressEvent(event);
}

/// The list may be older than the last edits.
void ResultList::choose(QTreeWidgetItem* item) {
    const auto component = static_cast<Row*>(item)->place.component;
    (void)basic::attempt([&] { update(component); });
    show_(CodePlace(static_cast<Row*>(item)->place));
}

} // namespace workbench
