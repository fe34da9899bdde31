#include "Apps/workbench/code/procedure_bar.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/events/event_handler.h"
#include <QBoxLayout>
#include <QComboBox>
#include <QHash>
#include <QSignalBlocker>
#include <map>

namespace workbench {

bool isProcedure(const vbide::Member& member) {
    return member.type == vbide::Member::Method || member.type == vbide::Member::Property;
}

namespace {

constexpr int kListGap = 2;

/// The part of a name before its last "_".
QString handledObject(const vbide::Member& member) {
    const auto name = qt(member.Name);
    return name.left(std::max<qsizetype>(0, name.lastIndexOf('_')));
}

QString generalObject() { return "(General)"; }

/// The name of a handler without its object.
QString handledEvent(const vbide::Member& member) { return qt(member.Name).mid(handledObject(member).size() + 1); }

/// "Value [PropertyGet]": a property of an interface has several procedures.
QString listedName(const host::ClassEvent& event) {
    const auto words = qt(event.procedure).remove(' ');
    return words.startsWith("Property") ? QString("%1 [%2]").arg(qt(event.name), words) : qt(event.name);
}

} // namespace

ProcedureBar::ProcedureBar(vbide::Ref<vbide::VBComponent> component, Callbacks callbacks)
    : component_(std::move(component)),
      callbacks_(std::move(callbacks)),
      objects_(new QComboBox),
      procedures_(new QComboBox) {
    objects_->setObjectName("objects");
    procedures_->setObjectName("procedures");
    auto* const lists = new QHBoxLayout(this);
    lists->setContentsMargins(0, 0, 0, 0);
    lists->setSpacing(kListGap);
    lists->addWidget(objects_);
    lists->addWidget(procedures_);
    connect(objects_, &QComboBox::activated, this, [this] { chosenObject(); });
    connect(procedures_, &QComboBox::activated, this, [this] { chosenProcedure(); });
}

void ProcedureBar::list(int line) {
    const QSignalBlocker ours(objects_);
    listObjects();
    listMembers();
    shownRow_ = -1;
    showAt(line);
}

void ProcedureBar::listObjects() {
    known_ = eventObjects(*component_);
    objects_->clear();
    objects_->addItem(generalObject());
    for (const auto& object : known_) objects_->addItem(qt(object.name));
}

void ProcedureBar::listMembers() {
    QHash<QString, int> rows;
    for (int row = 1; row < objects_->count(); ++row) rows[objects_->itemText(row).toLower()] = row;
    listed_.clear();
    for (auto& member : component_->CodeModule()->Members())
        if (isProcedure(member)) listed_.push_back({member, rows.value(handledObject(member).toLower(), 0)});
}

/// The procedure that contains a line (from 1), null above the first one.
const ProcedureBar::Listed* ProcedureBar::at(int line) const {
    const Listed* within = nullptr;
    for (const auto& listed : listed_)
        if (listed.member.CodeLocation <= line && (!within || listed.member.CodeLocation > within->member.CodeLocation))
            within = &listed;
    return within;
}

/// Called for each move of the cursor.
void ProcedureBar::showAt(int line) {
    const auto* const within = at(line);
    const int row = within ? within->row : 0;
    if (row != shownRow_) {
        const QSignalBlocker ours(objects_);
        objects_->setCurrentIndex(row);
        listProcedures();
    }
    procedures_->setCurrentIndex(within ? procedures_->findData(within->member.CodeLocation) : 0);
}

const EventObject* ProcedureBar::object() const {
    const int row = objects_->currentIndex() - 1;
    return row < 0 ? nullptr : &known_[std::size_t(row)];
}

void ProcedureBar::addProcedure(const QString& name, int line) {
    procedures_->addItem(name, line);
    auto shown = procedures_->font();
    shown.setBold(line > 0);
    procedures_->setItemData(procedures_->count() - 1, shown, Qt::FontRole);
}

void ProcedureBar::listProcedures() {
    procedures_->clear();
    events_.clear();
    shownRow_ = objects_->currentIndex();
    if (const auto* shown = object()) return listEvents(*shown);
    procedures_->addItem("(Declarations)", 1);
    for (const auto& [member, row] : listed_)
        if (row == 0) procedures_->addItem(qt(member.Name), member.CodeLocation);
}

/// The events of an object, then handlers of events that its class does not have.
void ProcedureBar::listEvents(const EventObject& object) {
    std::map<QString, const vbide::Member*> handlers; // by event in lower case
    for (const auto& [member, row] : listed_)
        if (row == shownRow_) handlers[handledEvent(member).toLower()] = &member;
    events_ = eventsOf(*component_, object);
    const auto module = component_->CodeModule();
    for (const auto& event : events_) {
        addProcedure(listedName(event), handlerLine(*module, object, event));
        handlers.erase(qt(event.name).toLower());
    }
    for (const auto& [event, member] : handlers) addProcedure(handledEvent(*member), member->CodeLocation);
}

/// Goes to the handler of the default event. Without one the user chooses an event first.
void ProcedureBar::chosenObject() {
    listProcedures();
    const auto* const shown = object();
    if (!shown) return callbacks_.goTo(1);
    procedures_->setCurrentIndex(procedures_->findText(listedName(defaultEventOf(*component_, *shown))));
    const int line = procedures_->currentData().toInt();
    if (line > 0) return callbacks_.goTo(line);
    procedures_->setCurrentIndex(-1);
}

void ProcedureBar::chosenProcedure() {
    const int line = procedures_->currentData().toInt(), row = procedures_->currentIndex();
    if (line > 0) return callbacks_.goTo(line);
    if (const auto* const shown = object(); shown && row >= 0)
        callbacks_.add(EventObject(*shown), host::ClassEvent(events_[std::size_t(row)]));
}

} // namespace workbench
