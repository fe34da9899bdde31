#include "Apps/workbench/properties/properties_window.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/options/declared_options.h"
#include "Apps/workbench/properties/description_pane.h"
#include "Apps/workbench/properties/value_choosers.h"
#include "Basic/runtime_error.h"
#include <QAction>
#include <QBoxLayout>
#include <QComboBox>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTabBar>
#include <algorithm>

namespace workbench {

PropertiesWindow::PropertiesWindow(DesignHistory& history, Callbacks callbacks)
    : history_(history),
      callbacks_(std::move(callbacks)),
      objects_(new QComboBox),
      order_(new QTabBar),
      splitter_(new QSplitter(Qt::Vertical)),
      table_(new PropertiesTable),
      description_(new DescriptionPane),
      rows_([this](std::exception_ptr error) {
          // later, as the editor is just closing
          QTimer::singleShot(0, this, [this, error] { callbacks_.run([&] { std::rethrow_exception(error); }); });
      }),
      editors_(rows_, [this](const auto& index) { open(index); }) {
    objects_->setObjectName("propertyObjects");
    objects_->setAccessibleName("Object");
    objects_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    buildTable();
    layOut();
    addDescription();
    connect(objects_, &QComboBox::activated, this, [this](int row) { chosen(row); });
    refresh_.setSingleShot(true);
    refresh_.setInterval(0);
    connect(&refresh_, &QTimer::timeout, this, [this] { refresh(); });
}

void PropertiesWindow::buildTable() {
    table_->setModel(&rows_);
    table_->setItemDelegate(&editors_);
    table_->open = [this](const auto& index) { open(index); };
    table_->remove = [this](const auto& index) { return removePicture(rows_, index.row()); };
    connect(table_, &QTableView::doubleClicked, this, [this](const QModelIndex& index) { doubleClicked(index); });
    connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& now) {
        if (now.isValid()) currentName_ = rows_.name(now.row());
        describe();
        // so that typing edits the value
        if (now.column() == PropertyRows::kNameColumn)
            table_->setCurrentIndex(now.siblingAtColumn(PropertyRows::kValueColumn));
    });
}

void PropertiesWindow::layOut() {
    order_->setObjectName("propertyOrder");
    order_->setAccessibleName("Order of the properties");
    order_->addTab("Alphabetic");
    order_->addTab("Categorized");
    order_->setDrawBase(false);
    order_->setCurrentIndex(kPropertiesCategorized.stored() ? 1 : 0);
    rows_.categorize(kPropertiesCategorized.stored());
    connect(order_, &QTabBar::currentChanged, this, [this](int page) { categorize(page == 1); });
    splitter_->setObjectName("propertySplitter");
    splitter_->addWidget(table_);
    splitter_->addWidget(description_);
    splitter_->setStretchFactor(0, 1);
    splitter_->setSizes({height(), description_->fontMetrics().height() * 4});
    splitter_->setChildrenCollapsible(false);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(objects_);
    layout->addWidget(order_);
    layout->addWidget(splitter_, 1);
    setFocusProxy(table_);
}

void PropertiesWindow::addDescription() {
    auto* const shown = new QAction("&Description", this);
    shown->setCheckable(true);
    shown->setChecked(kPropertyDescriptions.stored());
    description_->setVisible(shown->isChecked());
    connect(shown, &QAction::toggled, this, [this](bool visible) {
        kPropertyDescriptions.store(visible);
        description_->setVisible(visible);
    });
    for (QWidget* widget : {static_cast<QWidget*>(table_), static_cast<QWidget*>(description_)}) {
        widget->addAction(shown);
        widget->setContextMenuPolicy(Qt::ActionsContextMenu);
    }
}

void PropertiesWindow::inspect(const vbide::Ref<vbide::VBComponent>& component,
                               const vbide::Ref<vbide::VBControl>& control) {
    inspect(component, control ? InspectedControls{control} : InspectedControls());
}

void PropertiesWindow::inspect(const vbide::Ref<vbide::VBComponent>& component, const InspectedControls& controls) {
    if (component == component_ && controls == selected_ && !project_) return;
    project_ = nullptr;
    component_ = component;
    selected_ = controls;
    show();
}

void PropertiesWindow::inspect(const vbide::Ref<vbide::VBProject>& project) {
    clear();
    project_ = project;
    show();
}

void PropertiesWindow::clear() {
    project_ = nullptr;
    component_ = nullptr;
    selected_.clear();
    show();
}

void PropertiesWindow::refresh() {
    const auto gone = basic::attempt([this] {
        if (project_) (void)project_->Name();
        if (component_) (void)component_->Name();
        for (const auto& control : selected_) (void)control->ClassName();
    });
    if (gone.Number != 0) return clear();
    listObjects();
    rows_.reread();
}

void PropertiesWindow::show() {
    refresh_.stop();
    InspectedObject shown;
    (void)basic::attempt([&] { shown = object(); });
    const auto wanted = currentName_;
    rows_.show(std::move(shown));
    spanHeadings();
    listObjects();
    selectRow(wanted);
}

/// An object without this property does not make the next one forget it.
void PropertiesWindow::selectRow(const QString& name) {
    const int first = rows_.rowCount() > 1 && rows_.isHeading(0) ? 1 : 0;
    const int found = rows_.rowOf(name);
    if (rows_.rowCount() > 0)
        table_->setCurrentIndex(rows_.index(found < 0 ? first : found, PropertyRows::kValueColumn));
    if (!name.isEmpty()) currentName_ = name;
    describe();
}

void PropertiesWindow::spanHeadings() {
    table_->clearSpans();
    for (int row = 0; row < rows_.rowCount(); ++row)
        if (rows_.isHeading(row)) table_->setSpan(row, PropertyRows::kNameColumn, 1, PropertyRows::kColumns);
}

void PropertiesWindow::categorize(bool categorized) {
    kPropertiesCategorized.store(categorized);
    const auto wanted = currentName_;
    rows_.categorize(categorized);
    spanHeadings();
    selectRow(wanted);
}

void PropertiesWindow::describe() {
    const auto now = table_->currentIndex();
    if (!now.isValid()) return description_->clear();
    description_->describe(rows_.name(now.row()), rows_.details(now.row()));
}

InspectedObject PropertiesWindow::object() const {
    if (project_) return inspected(project_);
    return component_ ? inspected(history_, component_, selected_) : InspectedObject();
}

void PropertiesWindow::listObjects() {
    const QSignalBlocker ours(objects_);
    objects_->clear();
    controls_.clear();
    (void)basic::attempt([&] { // a removed object has no name
        if (project_) return objects_->addItem(qt(project_->Name()) + " Project");
        if (!component_) return;
        objects_->addItem(titleOf(*component_));
        if (hasDesign(*component_)) listControls();
    });
    if (selected_.size() > 1) return objects_->setCurrentIndex(-1);
    const auto found = selected_.empty() ? controls_.end() : std::ranges::find(controls_, selected_.front());
    objects_->setCurrentIndex(found == controls_.end() ? 0 : int(found - controls_.begin()) + 1);
}

void PropertiesWindow::listControls() {
    QStringList titles;
    for (const auto& control : component_->Designer()->VBControls()->items()) {
        controls_.push_back(control);
        titles << titleOf(*control);
    }
    objects_->addItems(titles);
}

void PropertiesWindow::chosen(int row) {
    if (!component_) return;
    const auto control = row > 0 ? controls_[std::size_t(row) - 1] : nullptr;
    callbacks_.select(control);
    inspect(component_, control); // even if no form is in front
}

void PropertiesWindow::open(const QModelIndex& index) {
    if (rows_.chooser(index.row()) != Chooser::None)
        return callbacks_.run([&] { chooseValue(*table_, rows_, index.row()); });
    const auto value = index.siblingAtColumn(PropertyRows::kValueColumn);
    if (rows_.choices(index.row()).isEmpty()) return;
    table_->edit(value);
    if (auto* list = dynamic_cast<QComboBox*>(table_->indexWidget(value))) list->showPopup();
}

void PropertiesWindow::doubleClicked(const QModelIndex& index) {
    if (rows_.isHeading(index.row())) return;
    if (!rows_.choices(index.row()).isEmpty()) return rows_.cycle(index.row());
    if (rows_.chooser(index.row()) != Chooser::None) return open(index);
    const auto value = index.siblingAtColumn(PropertyRows::kValueColumn);
    if (value.flags() & Qt::ItemIsEditable) table_->edit(value);
}

} // namespace workbench
