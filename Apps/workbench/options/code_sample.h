#pragma once
#include "Apps/workbench/options/code_look.h"
#include <QLabel>

namespace workbench {

/// Some lines of code in a look.
class CodeSample final : public QLabel {
public:
    CodeSample();

    void showIn(const CodeLook& look);
};

} // namespace workbench
