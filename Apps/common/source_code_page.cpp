#include "Apps/common/source_code_page.h"
#include "Host/model/project.h"

namespace apps {

basic::CodePage codePageOfSource(host::Host& host, const std::string& path) {
    for (const auto& project : host.VBProjects()->items()) {
        const auto own = basic::cast<host::Project>(project);
        if (!own) continue;
        for (const auto& component : own->components().list())
            if (component->path() == path) return component->source().codePage();
    }
    return basic::CodePage::windows1252();
}

} // namespace apps
