#include "Apps/workbench/bridge/drawn_form.h"
#include "Apps/workbench/bridge/moving_picture.h"
#include <QFile>
#include <QTabBar>
#include <QUiLoader>
#include <memory>

namespace workbench {

namespace {

class FormLoader final : public QUiLoader {
    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
        std::unique_ptr<QWidget> widget;
        if (className == "MovingPicture") widget = std::make_unique<MovingPicture>(parent);
        if (className == "QTabBar") widget = std::make_unique<QTabBar>(parent);
        if (!widget) return QUiLoader::createWidget(className, parent, name);
        widget->setObjectName(name);
        return widget.release(); // owned by the parent
    }
};

} // namespace

QWidget* drawnForm(const fernwick::Form& form, QWidget* parent) {
    QFile file(QString(":/forms/%1.ui").arg(form.typeName()));
    QWidget* const drawn = file.open(QIODevice::ReadOnly) ? FormLoader().load(&file, parent) : nullptr;
    if (!drawn) throw basic::RuntimeError(basic::kFileNotFound, std::string("No window for ") + form.typeName());
    return drawn;
}

} // namespace workbench
