#pragma once
// What a window offers, as text: one line for each widget, with its words and what distinguishes it from a plain widget
// of its class. Fonts and sizes that depend on the machine are left out.
#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QDockWidget>
#include <QFontComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QMetaProperty>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>
#include <QTextBrowser>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <sstream>

namespace test {

class WindowWords {
public:
    explicit WindowWords(const QWidget& window) {
        for (QWidget* plain : std::initializer_list<QWidget*>{
                 new QWidget, new QLabel, new QPushButton, new QToolButton, new QLineEdit, new QComboBox,
                 new QFontComboBox, new QSpinBox, new QCheckBox, new QTreeWidget, new QListWidget, new QTableView,
                 new QTabWidget, new QDockWidget, new QToolBar, new QFrame, new QTextBrowser, new QMessageBox})
            plain_[plain->metaObject()->className()].reset(plain);
        add(window, 0);
    }
    const std::string& text() const { return text_; }

private:
    /// Differs between versions of Qt.
    static bool isOfQt(const QWidget& widget) {
        static const QStringList kParts{"QScrollBar",
                                        "QRubberBand",
                                        "QSizeGrip",
                                        "QHeaderView",
                                        "QTabBar",
                                        "QDockWidgetTitleButton",
                                        "QMessageBoxDetailsText"};
        static const QRegularExpression kNames("^qt_(scrollarea|msgbox.*label|menubar|toolbar)");
        return kNames.match(widget.objectName()).hasMatch() || kParts.contains(widget.metaObject()->className());
    }
    static QString quoted(QString text) { return '"' + text.replace('\n', "\\n").replace(QChar(0x2028), "\\n") + '"'; }
    static QString value(const QMetaProperty& property, const QVariant& value) {
        if (property.isEnumType()) return property.enumerator().valueToKeys(value.toInt());
        return value.typeId() == QMetaType::QString ? quoted(value.toString()) : value.toString();
    }

    void add(const QWidget& widget, int depth) {
        if (isOfQt(widget)) return;
        auto line = QString(depth * 2, ' ') + QString(widget.metaObject()->className()).remove("workbench::");
        if (!widget.objectName().isEmpty()) line += ' ' + widget.objectName();
        for (const char* const words : {"title", "text", "currentText"}) line += wordsOf(widget, words);
        if (widget.isWindow() || qobject_cast<const QDockWidget*>(&widget)) line += ' ' + quoted(widget.windowTitle());
        line += traitsOf(widget);
        text_ += line.toStdString() + '\n';
        addEntries(widget, depth + 1);
        if (isWhole(widget)) return;
        for (const auto* const child : widget.children())
            if (child->isWidgetType()) {
                const auto& part = static_cast<const QWidget&>(*child);
                if (!part.isWindow()) add(part, depth + 1);
            }
    }
    /// Its parts are not the program's.
    static bool isWhole(const QWidget& widget) {
        return qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QAbstractSpinBox*>(&widget) ||
               qobject_cast<const QAbstractItemView*>(&widget) || qobject_cast<const QLineEdit*>(&widget);
    }
    static QString wordsOf(const QWidget& widget, const char* property) {
        if (qobject_cast<const QFontComboBox*>(&widget)) return {}; // the machine's
        const auto words = widget.property(property);
        return words.isValid() && !words.toString().isEmpty() ? ' ' + quoted(words.toString()) : QString();
    }
    QString traitsOf(const QWidget& widget) {
        static constexpr const char* kTraits[] = {"toolTip",
                                                  "statusTip",
                                                  "placeholderText",
                                                  "accessibleDescription",
                                                  "informativeText",
                                                  "detailedText",
                                                  "icon",
                                                  "suffix",
                                                  "prefix",
                                                  "minimum",
                                                  "maximum",
                                                  "enabled",
                                                  "checkable",
                                                  "checked",
                                                  "default",
                                                  "autoDefault",
                                                  "readOnly",
                                                  "flat",
                                                  "autoRaise",
                                                  "editable",
                                                  "wordWrap",
                                                  "clearButtonEnabled",
                                                  "alternatingRowColors",
                                                  "rootIsDecorated",
                                                  "uniformRowHeights",
                                                  "sortingEnabled",
                                                  "headerHidden",
                                                  "tabsClosable",
                                                  "movable",
                                                  "documentMode",
                                                  "openExternalLinks",
                                                  "showGrid",
                                                  "tabKeyNavigation",
                                                  "allColumnsShowFocus",
                                                  "toolButtonStyle",
                                                  "popupMode",
                                                  "selectionMode",
                                                  "selectionBehavior",
                                                  "editTriggers",
                                                  "textFormat",
                                                  "verticalScrollMode",
                                                  "contextMenuPolicy",
                                                  "focusPolicy",
                                                  "features",
                                                  "allowedAreas",
                                                  "textElideMode",
                                                  "frameShape",
                                                  "autoFillBackground",
                                                  "textInteractionFlags"};
        QString all;
        const auto& plain = plainOf(widget);
        for (const char* const name : kTraits) {
            const int at = widget.metaObject()->indexOfProperty(name);
            if (at < 0) continue;
            const auto property = widget.metaObject()->property(at);
            const auto now = property.read(&widget);
            if (now.typeId() != QMetaType::QIcon && now != plain.property(name))
                all += QString(" %1=%2").arg(name, value(property, now));
        }
        if (widget.isHidden() && !widget.isWindow()) all += " hidden";
        return all + accessibleName(widget);
    }
    /// A widget of the same class, or of its nearest base, as Qt creates it.
    const QWidget& plainOf(const QWidget& widget) const {
        for (const auto* kind = widget.metaObject(); kind; kind = kind->superClass())
            if (const auto found = plain_.find(kind->className()); found != plain_.end()) return *found->second;
        return *plain_.at("QWidget");
    }
    /// What a screen reader says, if the words of the widget are not the same.
    static QString accessibleName(const QWidget& widget) {
        auto* const read = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget));
        const bool isNamed = read && !qobject_cast<const QComboBox*>(&widget); // Qt reads the chosen entry
        const auto name = isNamed ? read->text(QAccessible::Name) : widget.accessibleName();
        const auto words = widget.property("text").toString().remove('&');
        return name.isEmpty() || name == words || name == widget.windowTitle() ? QString() : " read as " + quoted(name);
    }

    void addEntries(const QWidget& widget, int depth) {
        if (const auto* const pages = qobject_cast<const QTabWidget*>(&widget))
            for (int page = 0; page < pages->count(); ++page)
                text_ += QString("%1- %2 (%3)\n")
                             .arg(QString(depth * 2, ' '), pages->tabText(page), pages->tabToolTip(page))
                             .toStdString();
        if (qobject_cast<const QFontComboBox*>(&widget)) return;
        if (const auto* const list = qobject_cast<const QComboBox*>(&widget))
            addRows(*list->model(), {}, depth);
        else if (const auto* const view = qobject_cast<const QAbstractItemView*>(&widget); view && view->model())
            addHeader(*view->model(), depth), addRows(*view->model(), {}, depth);
    }
    void addHeader(const QAbstractItemModel& model, int depth) {
        QStringList titles;
        for (int column = 0; column < model.columnCount(); ++column)
            titles << model.headerData(column, Qt::Horizontal).toString();
        text_ += (QString(depth * 2, ' ') + "# " + titles.join(" | ")).toStdString() + '\n';
    }
    void addRows(const QAbstractItemModel& model, const QModelIndex& above, int depth) {
        for (int row = 0; row < model.rowCount(above); ++row) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(above); ++column)
                cells << cell(model.index(row, column, above));
            text_ += (QString(depth * 2, ' ') + "- " + cells.join(" | ")).toStdString() + '\n';
            addRows(model, model.index(row, 0, above), depth + 1);
        }
    }
    static QString cell(const QModelIndex& index) {
        auto words = index.data().toString().replace('\n', "\\n");
        const auto tip = index.data(Qt::ToolTipRole).toString();
        if (!tip.isEmpty() && tip != words) words += " (" + QString(tip).replace('\n', "\\n") + ')';
        if (const auto read = index.data(Qt::AccessibleTextRole).toString(); !read.isEmpty() && read != words)
            words += " read as " + quoted(read);
        if (const auto mark = index.data(Qt::CheckStateRole); mark.isValid())
            words = (mark.toInt() == Qt::Checked ? "[x] " : "[ ] ") + words;
        return words;
    }

    std::map<std::string, std::unique_ptr<QWidget>> plain_;
    std::string text_;
};

/// Compares a text with words/`name`.txt, which FERNWICK_APPROVE=1 rewrites.
inline void expectGolden(const std::string& text, const std::string& name) {
    const auto path = FERNWICK_SOURCE_DIR "/tests/workbench/words/" + name + ".txt";
    if (std::getenv("FERNWICK_APPROVE")) std::ofstream(path) << text;
    std::ostringstream golden;
    golden << std::ifstream(path).rdbuf();
    EXPECT_EQ(text, golden.str()) << path;
}

/// Compares the words of a window. `changing` are texts that differ from run to run, such as a folder, and what replaces
/// them.
inline void expectWords(const QWidget& window, const std::string& name,
                        const std::vector<std::pair<std::string, std::string>>& changing = {}) {
    auto words = QString::fromStdString(WindowWords(window).text());
    for (const auto& [text, always] : changing)
        words.replace(QString::fromStdString(text), QString::fromStdString(always));
    expectGolden(words.toStdString(), name);
}

} // namespace test
