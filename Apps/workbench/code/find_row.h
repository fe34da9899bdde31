#pragma once
// A row of the find bar: a field with its label, then buttons or options, which are below the field where the bar is narrow.
#include <QBoxLayout>
#include <QString>
#include <QWidget>

namespace workbench {

class FindRow : public QWidget {
public:
    enum class Width { OfField, OfWindow };
    /// A field with the width of the window takes what the rest leaves.
    FindRow(const QString& label, QWidget* field, Width width);

    void add(QWidget* one) { rest_->addWidget(one); }
    /// That of the narrow form, so that the bar takes no room from the tool windows.
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QBoxLayout *parts_, *field_, *rest_;
};

} // namespace workbench
