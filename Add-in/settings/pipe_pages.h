#pragma once
// The pages that the pipes of the installed devices add.
#include "Add-in/platform/page_place.h"
#include "Add-in/platform/pipes.h"
#include "Add-in/settings/settings_services.h"

namespace fernwick {

struct PipeDialog {
    /// The page, in place of its window's handle.
    basic::Ref<Form> Hwnd;
    std::string Name;
    basic::Ref<qlpipe::IQLPipeConfiguration> Object;
    /// Whether the page has been shown. A page that was not is neither checked nor stored.
    bool Visited = false;
};

class PipePages {
public:
    PipePages(Form* form, const SettingsServices& services);

    PagePlace picPipePages;
    std::vector<PipeDialog> PipeDialogs;

    /// One page for each pipe, however many design targets it serves. A pipe whose object cannot be created has none.
    void SetupPipeFrames();
    void CleanUpPipes();
    /// Null for a name that no page has.
    PipeDialog* find(const std::string& name);
    /// Stores what the user may have changed.
    void apply();

private:
    std::vector<std::string> pipeNames(Procedure& here) const;
    void add(const std::string& pipe);

    const SettingsServices& services_;
};

} // namespace fernwick
