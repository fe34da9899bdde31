#include "Apps/workbench/unsaved/unsaved_work.h"
#include "Apps/workbench/base/message_box.h"
#include "Apps/workbench/unsaved/unsaved_texts.h"

namespace workbench {

UnsavedWork::UnsavedWork(host::Host& host, QWidget& window, Callbacks callbacks)
    : window_(window),
      journal_(host, window, base_, [this](const QString& why) { warn(QString(unsaved_texts::kNotKept).arg(why)); }),
      outside_(
          host, window,
          {std::move(callbacks.reopen), std::move(callbacks.refresh), [this](const QString& text) { warn(text); }}),
      recovery_(host, window, base_,
                {std::move(callbacks.open),
                 [this] {
                     journal_.write();
                     outside_.settle(); // the user already knows of the changes on disk to files that were restored
                 },
                 [this](const QString& text) { warn(text); }}) {}

void UnsavedWork::warn(const QString& text) { showBox(&window_, QMessageBox::Warning, text); }

} // namespace workbench
