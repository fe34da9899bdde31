#include "Apps/workbench/properties/properties_window.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/properties/font_choice.h"
#include "Basic/runtime_error.h"
#include <QBoxLayout>
#include <QComboBox>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QTableView>
#include <algorithm>

namespace workbench {

namespace {

constexpr int kUsualNameWidth = 110, kRowPadding = 6;

} // namespace

PropertiesWindow::PropertiesWindow(DesignHistory& history, Callbacks callbacks)
    : history_(history),
      callbacks_(std::move(callbacks)),
      objects_(new QComboBox),
      table_(new QTableView),
      rows_([this](std::exception_ptr error) {
          // later, as the editor is just closing
          QTimer::singleShot(0, this, [this, error] { callbacks_.run([&] { std::rethrow_exception(error); }); });
      }),
      editors_(rows_) {
    objects_->setObjectName("propertyObjects");
    objects_->setAccessibleName("Object");
    objects_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    buildTable();
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(objects_);
    layout->addWidget(table_);
    setFocusProxy(table_);
    connect(objects_, &QComboBox::activated, this, [this](int row) { chosen(row); });
    refresh_.setSingleShot(true);
    refresh_.setInterval(0);
    connect(&refresh_, &QTimer::timeout, this, [this] { refresh(); });
}

void PropertiesWindow::buildTable() {
    table_->setObjectName("propertyTable");
    table_->setAccessibleName("Properties");
    table_->setModel(&rows_);
    table_->setItemDelegate(&editors_);
    table_->horizontalHeader()->hide();
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowPadding);
    table_->setColumnWidth(PropertyRows::kNameColumn, kUsualNameWidth);
    table_->setSelectionBehavior(QTableView::SelectRows);
    table_->setSelectionMode(QTableView::SingleSelection);
    table_->setTabKeyNavigation(false);
    table_->setWordWrap(false);
    table_->setEditTriggers(QTableView::AnyKeyPressed | QTableView::EditKeyPressed | QTableView::SelectedClicked);
    connect(table_, &QTableView::doubleClicked, this, [this](const QModelIndex& index) { doubleClicked(index); });
    connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& now) {
        if (now.isValid()) currentName_ = now.siblingAtColumn(PropertyRows::kNameColumn).data().toString();
        // so that typing edits the value
        if (now.column() == PropertyRows::kNameColumn)
            table_->setCurrentIndex(now.siblingAtColumn(PropertyRows::kValueColumn));
    });
}

void PropertiesWindow::inspect(const vbide::Ref<vbide::VBComponent>& component,
                               const vbide::Ref<vbide::VBControl>& control) {
    if (component == component_ && control == control_ && !project_) return;
    project_ = nullptr;
    component_ = component;
    control_ = control;
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
    control_ = nullptr;
    show();
}

void PropertiesWindow::refresh() {
    const auto gone = basic::attempt([this] {
        if (project_) (void)project_->Name();
        if (component_) (void)component_->Name();
        if (control_) (void)control_->ClassName();
    });
    if (gone.Number != 0) return clear();
    listObjects();
    rows_.reread();
}

void PropertiesWindow::show() {
    refresh_.stop();
    const auto wanted = currentName_;
    InspectedObject shown;
    (void)basic::attempt([&] { shown = object(); });
    rows_.show(std::move(shown));
    listObjects();
    const int row = std::max(0, rows_.rowOf(wanted));
    if (rows_.rowCount() > 0) table_->setCurrentIndex(rows_.index(row, PropertyRows::kValueColumn));
    currentName_ = wanted.isEmpty() ? currentName_
                                    : wanted; // an object without this property does not make the next one forget it
}

InspectedObject PropertiesWindow::object() const {
    if (project_) return inspected(project_);
    return component_ ? inspected(history_, component_, control_) : InspectedObject();
}

void PropertiesWindow::listObjects() {
    const QSignalBlocker ours(objects_);
    objects_->clear();
    controls_.clear();
    (void)basic::attempt([&] { // a removed object has no name
        if (project_) return objects_->addItem(qt(project_->Name()) + " Project");
        if (!component_) return;
        objects_->addItem(titleOf(*component_));
        if (!hasDesign(*component_)) return;
        QStringList titles;
        for (const auto& control : component_->Designer()->VBControls()->items()) {
            controls_.push_back(control);
            titles << titleOf(*control);
        }
        objects_->addItems(titles);
    });
    const auto found = std::find(controls_.begin(), controls_.end(), control_);
    objects_->setCurrentIndex(found == controls_.end() ? 0 : int(found - controls_.begin()) + 1);
}

void PropertiesWindow::chosen(int row) {
    if (!component_) return;
    const auto control = row > 0 ? controls_[std::size_t(row) - 1] : nullptr;
    callbacks_.select(control);
    inspect(component_, control); // even if no form is in front
}

void PropertiesWindow::doubleClicked(const QModelIndex& index) {
    const auto value = index.siblingAtColumn(PropertyRows::kValueColumn);
    if (!rows_.choices(index.row()).isEmpty()) return rows_.cycle(index.row());
    if (rows_.details(index.row()).kind == host::PropertyKind::Font) return chooseFont(rows_.property(index.row()));
    if (value.flags() & Qt::ItemIsEditable) table_->edit(value);
}

void PropertiesWindow::chooseFont(const vbide::Ref<vbide::Property>& font) {
    callbacks_.run([&] {
        const auto members = font->ObjectValue();
        const auto changes = askForFont(members, this);
        if (changes.empty()) return;
        history_.set(component_, members, changes);
        rows_.reread();
    });
}

} // namespace workbench
