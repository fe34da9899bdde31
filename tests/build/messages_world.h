#pragma once
// A message store over a host in memory, with the real window document.
#include "Add-in/build/modCompileErrorManagement.h"
#include "Add-in/build/udocCompileMsgs.h"
#include "tests/support/traced_host.h"
#include "tests/support/traced_platform.h"

namespace test {

constexpr char kMessagesSection[] = "Quinloft Project Compile Errors";

struct MessagesWorld : TracedPlatform {
    MessagesWorld() {
        addIn.gVBInstance = vbe;
        vbe->projects->list.push_back(project);
        vbe->active = project;
    }
    void store(const std::string& key, const std::string& value) {
        project->properties[{kMessagesSection, key}] = value;
    }
    std::string stored(const std::string& key) const { return project->stored(key); }
    /// Rows as "title|line|number|message".
    std::vector<std::string> rows() const {
        std::vector<std::string> all;
        for (int row = 1; row < window->rowCount(); ++row) {
            const auto& cells = window->message(row).cells;
            all.push_back(cells[2] + "|" + cells[3] + "|" + cells[4] + "|" + cells[5]);
        }
        return all;
    }

    fernwick::modRegistry2 registry2{registry};
    fernwick::AddIn addIn{registry2, errors, environment};
    basic::Ref<fernwick::udocCompileMsgs> window = basic::make<fernwick::udocCompileMsgs>(addIn, errors);
    basic::Ref<TracedVbe> vbe =
        basic::make<TracedVbe>(trace, [this](const std::string&) { return basic::Ref<fernwick::Object>(window); });
    basic::Ref<TracedProject> project = basic::make<TracedProject>(trace, "Demo", "/p/Demo.vbp");
    fernwick::modCompileErrorManagement messages{addIn, errors, platform};
};

} // namespace test
