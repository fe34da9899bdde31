#include "Apps/workbench/designer/control_clipboard.h"
#include "Apps/workbench/base/message_box.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/designer/form_reader.h"
#include "Apps/workbench/designer/form_view.h"
#include "Apps/workbench/designer/place_changes.h"
#include "Host/model/forms/control_text.h"
#include <QApplication>
#include <QClipboard>
#include <QDataStream>
#include <QIODevice>
#include <QMap>
#include <QMimeData>
#include <QPointer>
#include <algorithm>
#include <fmt/format.h>

namespace workbench {

namespace {

constexpr auto kControls = "application/x-fernwick-controls", kForm = "application/x-fernwick-form",
               kRecords = "application/x-fernwick-records";
constexpr auto kArrayQuestion = "You already have a control named '%1'. Do you want to create a control array?";

using Control = FormView::Control;

/// Controls as text, and the form that they are from: its resource file has some of their values.
struct Copied {
    std::string text, form;
    host::CopiedRecords records;
};

/// The form's file; for a form that was never saved, what no other form has in this program.
std::string identityOf(const FormView& view) {
    const auto file = view.component()->FileNames(1);
    return file.empty() ? fmt::format("{}/{}", QApplication::applicationPid(), fmt::ptr(view.component().shared()))
                        : file;
}

QByteArray bytesOf(const host::CopiedRecords& records) {
    QMap<QByteArray, QByteArray> map;
    for (const auto& [literal, record] : records)
        map[QByteArray::fromStdString(literal)] = QByteArray::fromStdString(record);
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << map;
    return bytes;
}

/// Another program may have put anything there.
host::CopiedRecords recordsIn(const QByteArray& bytes) {
    QMap<QByteArray, QByteArray> map;
    QDataStream stream(bytes);
    stream >> map;
    host::CopiedRecords records;
    if (stream.status() != QDataStream::Ok) return records;
    for (auto entry = map.begin(); entry != map.end(); ++entry)
        records[entry.key().toStdString()] = entry.value().toStdString();
    return records;
}

Copied copied() {
    const auto* const data = QApplication::clipboard()->mimeData();
    if (!data) return {};
    return {data->data(kControls).toStdString(), data->data(kForm).toStdString(), recordsIn(data->data(kRecords))};
}

Copied selectedIn(const FormView& view) {
    return {host::textOfControls(view.selection()), identityOf(view),
            host::recordsOfControls(view.component()->Designer(), view.selection())};
}

bool wantsArray(FormView& view, const std::string& name) {
    const auto question = QString(kArrayQuestion).arg(qt(name));
    return showBox(view.window(), QMessageBox::Question, question, QMessageBox::Yes | QMessageBox::No,
                   QMessageBox::Yes) == QMessageBox::Yes;
}

/// How far copies move, so that they do not cover other controls of the same size exactly, and stay visible.
QPointF offsetOf(const FormPicture& picture, const std::vector<const DrawnControl*>& added, double step) {
    const auto& first = *added.front();
    const auto isCovered = [&](const QPointF& by) {
        return std::any_of(picture.controls.begin(), picture.controls.end(), [&](const auto& other) {
            const bool isNew = std::find(added.begin(), added.end(), &other) != added.end();
            return !isNew && other.container == first.container && other.place.topLeft() == first.place.topLeft() + by;
        });
    };
    QPointF by(step, step);
    while (isCovered(by)) by += QPointF(step, step);
    const auto around =
        first.container < 0 ? QRectF({}, picture.inner) : picture.controls[std::size_t(first.container)].place;
    const bool isVisible = around.intersects(first.place.normalized().translated(by).adjusted(0, 0, 1, 1));
    return isVisible ? by : first.origin - first.place.topLeft();
}

void moveAside(vbide::VBComponent& component, const std::vector<Control>& controls, double step) {
    const auto picture = pictureOfForm(component);
    std::vector<const DrawnControl*> added;
    for (const auto& control : controls)
        if (const auto* drawn = picture.find(control)) added.push_back(drawn);
    if (added.empty()) return;
    const auto by = offsetOf(picture, added, step);
    for (const auto* drawn : added)
        setAll(drawn->control->Properties(), changesOfPlace(*drawn, drawn->place.translated(by)));
}

void insert(FormView& view, const std::string& step, const Control& container, const Copied& copied) {
    const QPointer<FormView> here(&view);
    const auto component = view.component();
    host::InsertOptions options;
    options.keepsResources = copied.form == identityOf(view);
    options.records = copied.records;
    for (const auto& name : host::namesInUse(component->Designer(), copied.text))
        if (wantsArray(view, name)) options.arrays.push_back(name);
    if (!here) return; // closed under the question
    std::vector<Control> added;
    view.change(step, [&, apart = view.callbacks().grid().pixels] {
        added = host::insertControls(component->Designer(), container, copied.text, options);
        moveAside(*component, added, apart);
    });
    if (!here) return;
    std::erase_if(added, [&](const auto& control) { return !view.picture().find(control); });
    if (!added.empty()) view.select(added);
}

/// Null for the form.
Control selectedContainer(const FormView& view) {
    const auto leader = view.selected();
    return leader && isContainer(leader->ProgId()) ? leader : nullptr;
}

Control containerOfSelection(const FormView& view) {
    const auto* leader = view.drawnSelection();
    return leader && leader->container >= 0 ? view.picture().controls[std::size_t(leader->container)].control : nullptr;
}

} // namespace

void copyControls(const FormView& view) {
    const auto selected = selectedIn(view);
    if (selected.text.empty()) return;
    auto* const data = new QMimeData;
    data->setText(qt(selected.text));
    data->setData(kControls, QByteArray::fromStdString(selected.text));
    data->setData(kForm, QByteArray::fromStdString(selected.form));
    data->setData(kRecords, bytesOf(selected.records));
    QApplication::clipboard()->setMimeData(data);
}

void cutControls(FormView& view) {
    if (host::textOfControls(view.selection()).empty()) return;
    copyControls(view);
    view.removeSelected("Cut");
}

bool hasCopiedControls() {
    const auto* const data = QApplication::clipboard()->mimeData();
    return data && data->hasFormat(kControls);
}

void pasteControls(FormView& view) {
    if (hasCopiedControls()) insert(view, "Paste", selectedContainer(view), copied());
}

void duplicateControls(FormView& view) {
    const auto selected = selectedIn(view);
    if (!selected.text.empty()) insert(view, "Duplicate", containerOfSelection(view), selected);
}

} // namespace workbench
