#include "Apps/workbench/project/project_explorer.h"
#include "Apps/workbench/base/component_icons.h"
#include "Apps/workbench/base/drawn_icons.h"
#include "Apps/workbench/base/text.h"
#include <QFileInfo>
#include <QHeaderView>
#include <QStyledItemDelegate>
#include <algorithm>
#include <array>

namespace workbench {

namespace {

enum Column { kNameColumn, kFileColumn };
enum Data { kProjectNumber = Qt::UserRole, kComponentNumber };

struct Group {
    const char* name;
    vbide::vbext_ComponentType type;
};
/// In the order of the tree.
constexpr std::array kGroups{
    Group{"Forms", vbide::vbext_ct_VBForm},
    Group{"MDI Forms", vbide::vbext_ct_VBMDIForm},
    Group{"Modules", vbide::vbext_ct_StdModule},
    Group{"Class Modules", vbide::vbext_ct_ClassModule},
    Group{"User Controls", vbide::vbext_ct_UserControl},
    Group{"Property Pages", vbide::vbext_ct_PropPage},
    Group{"User Documents", vbide::vbext_ct_DocObject},
    Group{"Designers", vbide::vbext_ct_ActiveXDesigner},
    Group{"Related Documents", vbide::vbext_ct_RelatedDocument},
};

/// Returns the index in the table; its size for a type that the tree does not show.
std::size_t groupOf(vbide::vbext_ComponentType type) {
    const auto found = std::find_if(kGroups.begin(), kGroups.end(), [type](const auto& g) { return g.type == type; });
    return std::size_t(found - kGroups.begin());
}

/// Sorted without regard to letter case.
class Entry final : public QTreeWidgetItem {
public:
    using QTreeWidgetItem::QTreeWidgetItem;
    bool operator<(const QTreeWidgetItem& other) const override {
        return text(kNameColumn).compare(other.text(kNameColumn), Qt::CaseInsensitive) < 0;
    }
};

/// Draws names of files less prominently than those of components.
class FileDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->palette.setBrush(QPalette::Text, option->palette.placeholderText());
    }
};

/// The file, unless the name already says it.
QString shownFile(const QString& name, const QFileInfo& file) {
    const bool same = file.completeBaseName().compare(name, Qt::CaseInsensitive) == 0;
    return same ? QString() : file.fileName();
}

/// The name has a star if it is not saved. The dock may be too narrow for both texts.
template <class Object>
void showEntry(QTreeWidgetItem& entry, const Object& object, const std::string& file) {
    const auto name = qt(object->Name()), path = qt(file);
    entry.setText(kNameColumn, object->IsDirty() ? name + " *" : name);
    entry.setText(kFileColumn, shownFile(name, QFileInfo(path)));
    for (const auto column : {kNameColumn, kFileColumn})
        entry.setToolTip(column, path.isEmpty() ? name : name + "\n" + path);
}

} // namespace

ProjectExplorer::ProjectExplorer(vbide::Ref<vbide::VBE> host, Callbacks callbacks)
    : host_(std::move(host)), callbacks_(std::move(callbacks)) {
    setObjectName("explorer");
    setAccessibleName("Project explorer");
    setHeaderHidden(true);
    setColumnCount(2);
    header()->setMinimumSectionSize(0);
    header()->setStretchLastSection(false); // a hidden header does not follow the width of the view
    setItemDelegateForColumn(kFileColumn, new FileDelegate(this));
    setAllColumnsShowFocus(true);
    setUniformRowHeights(true);
    redraw_.setSingleShot(true);
    redraw_.setInterval(0); // adding a project causes hundreds of events
    connect(&redraw_, &QTimer::timeout, this, [this] { draw(); });
    connect(this, &QTreeWidget::itemActivated, this, [this] { openCurrent(); });
    watchProjects();
    draw();
}

void ProjectExplorer::watchProjects() {
    const auto events = host_->Events()->VBProjectsEvents();
    const auto soon = [this](const auto&...) { refreshSoon(); };
    projectEvents_.push_back(events->ItemAdded.connect(soon));
    projectEvents_.push_back(events->ItemRemoved.connect(soon));
    projectEvents_.push_back(events->ItemActivated.connect(soon));
    projectEvents_.push_back(events->ItemRenamed.connect(soon));
    projectEvents_.push_back(host_->Events()->FileControlEvents(nullptr)->AfterWriteFile.connect(soon));
}

void ProjectExplorer::watchComponents() {
    componentEvents_.clear();
    const auto soon = [this](const auto&...) { refreshSoon(); };
    for (const auto& project : projects_) {
        const auto events = host_->Events()->VBComponentsEvents(project);
        componentEvents_.push_back(events->ItemAdded.connect(soon));
        componentEvents_.push_back(events->ItemRemoved.connect(soon));
        componentEvents_.push_back(events->ItemRenamed.connect(soon));
    }
}

void ProjectExplorer::draw() {
    redraw_.stop();
    auto projects = host_->VBProjects()->items();
    std::vector<vbide::Ref<vbide::VBComponent>> components;
    for (const auto& project : projects)
        for (const auto& component : project->VBComponents()->items()) components.push_back(component);
    if (projects != projects_ || components != components_) {
        clear();
        projects_ = std::move(projects);
        components_ = std::move(components);
        watchComponents();
        addEntries();
        expandAll();
    }
    showTexts();
    callbacks_.drawn();
}

void ProjectExplorer::addEntries() {
    if (projects_.empty()) return;
    std::size_t component = 0;
    for (std::size_t i = 0; i < projects_.size(); ++i) {
        auto* const top = new QTreeWidgetItem(this);
        top->setData(kNameColumn, kProjectNumber, qulonglong(i + 1));
        top->setIcon(kNameColumn, drawnIcon("Project"));
        std::array<QTreeWidgetItem*, kGroups.size()> groups{};
        for (std::size_t g = 0; g < kGroups.size(); ++g) {
            groups[g] = new QTreeWidgetItem(top, {kGroups[g].name});
            groups[g]->setIcon(kNameColumn, drawnIcon("Folder"));
        }
        for (const auto last = component + std::size_t(projects_[i]->VBComponents()->Count()); component < last;) {
            const auto group = groupOf(components_[component++]->Type());
            if (group == kGroups.size()) continue;
            auto* const entry = new Entry(groups[group]);
            entry->setData(kNameColumn, kComponentNumber, qulonglong(component));
            entry->setIcon(kNameColumn, componentIcon(components_[component - 1]->Type()));
        }
        for (auto* group : groups)
            if (group->childCount() == 0) delete group;
    }
}

/// Updates what can change without new entries: names, files, dirty marks and the active project.
void ProjectExplorer::showTexts() {
    for (QTreeWidgetItemIterator at(this); *at; ++at) {
        if (const auto number = (*at)->data(kNameColumn, kProjectNumber).toULongLong()) {
            const auto& project = projects_[number - 1];
            showEntry(**at, project, project->FileName());
            auto font = this->font();
            font.setBold(host_->ActiveVBProject() == project);
            (*at)->setFont(kNameColumn, font);
        } else if (const auto number = (*at)->data(kNameColumn, kComponentNumber).toULongLong()) {
            const auto& component = components_[number - 1];
            showEntry(**at, component, component->FileNames(1));
        }
    }
    fitColumns();
    for (int i = 0; i < topLevelItemCount(); ++i)
        for (int group = 0; group < topLevelItem(i)->childCount(); ++group)
            topLevelItem(i)->child(group)->sortChildren(kNameColumn, Qt::AscendingOrder);
}

void ProjectExplorer::fitColumns() {
    resizeColumnToContents(kNameColumn);
    setColumnWidth(kFileColumn, std::max(0, viewport()->width() - columnWidth(kNameColumn)));
}

void ProjectExplorer::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    fitColumns();
}

vbide::Ref<vbide::VBProject> ProjectExplorer::currentProject() const {
    const auto* item = currentItem();
    const auto number = item ? item->data(kNameColumn, kProjectNumber).toULongLong() : 0;
    return number ? projects_[number - 1] : nullptr;
}

vbide::Ref<vbide::VBComponent> ProjectExplorer::currentComponent() const {
    const auto* item = currentItem();
    const auto number = item ? item->data(kNameColumn, kComponentNumber).toULongLong() : 0;
    return number ? components_[number - 1] : nullptr;
}

vbide::Ref<vbide::VBProject> ProjectExplorer::projectOfCurrent() const {
    const auto* item = currentItem();
    while (item && item->parent()) item = item->parent();
    const auto number = item ? item->data(kNameColumn, kProjectNumber).toULongLong() : 0;
    return number ? projects_[number - 1] : nullptr;
}

void ProjectExplorer::openCurrent() {
    if (const auto project = currentProject()) return callbacks_.activateProject(project);
    if (const auto component = currentComponent()) callbacks_.openCode(component);
}

} // namespace workbench
