#pragma once

namespace workbench {

/// Makes the controls of form designers known to screen readers, with name, class, text and place.
void exposeDesigners();

} // namespace workbench
