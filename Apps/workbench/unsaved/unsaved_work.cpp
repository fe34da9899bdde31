#include "Apps/workbench/unsaved/unsaved_work.h"
#include "Apps/workbench/code/code_texts.h"
#include "Apps/workbench/window/main_window.h"
#include <QMessageBox>

namespace workbench {

UnsavedWork::UnsavedWork(host::Host& host, MainWindow& window, std::function<void(const std::string& path)> open)
    : window_(window),
      journal_(host, window, base_, [this](const QString& why) { tell(QString(code_texts::kNotKept).arg(why)); }),
      outside_(host, window, [this](const QString& text) { tell(text); }),
      recovery_(host, window, base_,
                {std::move(open),
                 [this] {
                     journal_.write();
                     outside_.settle(); // what was restored over, the user has been told
                 },
                 [this](const QString& text) { tell(text); }}) {}

void UnsavedWork::tell(const QString& text) { QMessageBox::warning(&window_, code_texts::kTitle, text); }

} // namespace workbench
