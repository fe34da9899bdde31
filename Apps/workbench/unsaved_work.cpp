#include "Apps/workbench/unsaved_work.h"
#include <QMessageBox>

namespace workbench {

namespace {
constexpr auto kTitle = "Fernwick Workbench";
constexpr auto kNotKept = "What you type can't be kept for the case of a crash; save often: %1";
} // namespace

UnsavedWork::UnsavedWork(host::Host& host, QWidget& window, std::function<void(const std::string& path)> open)
    : window_(window),
      journal_(host, window, base_, [this](const QString& why) { tell(QString(kNotKept).arg(why)); }),
      recovery_(host, window, base_,
                {std::move(open), [this] { journal_.write(); }, [this](const QString& text) { tell(text); }}) {}

void UnsavedWork::tell(const QString& text) { QMessageBox::warning(&window_, kTitle, text); }

} // namespace workbench
