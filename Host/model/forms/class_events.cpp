#include "Host/model/forms/class_events.h"
#include "Basic/case_folding.h"
#include "Components/Language/foreign.h"
#include <algorithm>
#include <array>

namespace host {
namespace {

struct DefaultEvent {
    std::string_view className, event;
};

/// The events of device controls are in their descriptions; these do not open on Click.
constexpr std::array kDeviceEvents{
    DefaultEvent{"TavletsCtl.QLAlarm", "Alarm"},           DefaultEvent{"TavletsCtl.QLDatabase", "Reposition"},
    DefaultEvent{"TavletsCtl.QLFileStore", "Failure"},     DefaultEvent{"TavletsCtl.QLHScrollBar", "Change"},
    DefaultEvent{"TavletsCtl.QLInfrared", "BeamReceived"}, DefaultEvent{"TavletsCtl.QLInk", "Change"},
    DefaultEvent{"TavletsCtl.QLMenu", "ItemClick"},        DefaultEvent{"TavletsCtl.QLNetwork", "DataArrival"},
    DefaultEvent{"TavletsCtl.QLSerial", "DataArrival"},    DefaultEvent{"TavletsCtl.QLTabStrip", "Change"},
    DefaultEvent{"TavletsCtl.QLTextBox", "Change"},        DefaultEvent{"TavletsCtl.QLTimer", "Timer"},
    DefaultEvent{"TavletsCtl.QLVScrollBar", "Change"},
};

constexpr std::string_view kDeviceLibrary = "TavletsCtl.";

bool isEvent(const language::Member& member) { return member.kind == language::MemberKind::Event; }

/// The language's own classes need no library before a type.
std::string typeIn(std::string_view library, const std::string& type) {
    const auto qualified = std::string(library) + "." + type;
    return language::foreignLibrary(library) && language::findClass(qualified) ? qualified : type;
}

std::string parametersOf(std::string_view library, const language::Member& event) {
    std::string text;
    for (const auto& parameter : event.parameters)
        text += (text.empty() ? "" : ", ") + std::string(parameter.byRef ? "" : "ByVal ") + parameter.name + " As " +
                typeIn(library, parameter.type);
    return text;
}

} // namespace

std::vector<ClassEvent> languageEvents(std::string_view className) {
    std::vector<ClassEvent> events;
    const auto* found = language::findClass(className);
    if (!found) return events;
    const auto library = className.substr(0, className.find('.'));
    for (const auto& member : found->members)
        if (isEvent(member)) events.push_back({member.name, parametersOf(library, member)});
    std::sort(events.begin(), events.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    return events;
}

std::string defaultEventOf(std::string_view className) {
    if (const auto* found = language::findClass(className)) {
        const auto first = std::find_if(found->members.begin(), found->members.end(), isEvent);
        return first == found->members.end() ? "" : first->name;
    }
    for (const auto& row : kDeviceEvents)
        if (basic::equalNoCase(row.className, className)) return std::string(row.event);
    return basic::startsWithNoCase(className, kDeviceLibrary) ? "Click" : "";
}

} // namespace host
