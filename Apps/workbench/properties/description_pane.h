#pragma once
#include "Host/model/forms/control_class.h"
#include <QFrame>

class QLabel;

namespace workbench {

/// What the current property does.
class DescriptionPane final : public QFrame {
public:
    DescriptionPane();

    void describe(const QString& property, const host::ClassProperty& details);
    void clear();

private:
    QLabel *name_, *text_;
};

} // namespace workbench
