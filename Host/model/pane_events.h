#pragma once
// Events of code panes and designers, for front ends that draw them.
#include "Add-in/platform/events.h"
#include "Add-in/platform/host_project.h"

namespace host {

struct PaneEvents {
    /// The pane should come to the front.
    fernwick::Event<vbide::Ref<vbide::VBComponent>> shown;
    fernwick::Event<vbide::Ref<vbide::VBComponent>> selectionSet;
    /// The code was edited, possibly by the front end itself.
    fernwick::Event<vbide::Ref<vbide::VBComponent>> codeChanged;
    /// The designer of a form should come to the front.
    fernwick::Event<vbide::Ref<vbide::VBComponent>> designerShown;
    /// The designer of a form was opened or closed.
    fernwick::Event<vbide::Ref<vbide::VBComponent>> designerOpened;
    /// The text of a form was edited, possibly by the front end itself.
    fernwick::Event<vbide::Ref<vbide::VBComponent>> designChanged;
};

using PaneEvent = fernwick::Event<vbide::Ref<vbide::VBComponent>> PaneEvents::*;

} // namespace host
