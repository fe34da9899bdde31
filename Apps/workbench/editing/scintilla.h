#pragma once
// The editing component. Its headers need two keywords that QT_NO_KEYWORDS disables.
#define slots Q_SLOTS
#define signals Q_SIGNALS
#include <Qsci/qscicommandset.h>
#include <Qsci/qscilexer.h>
#include <Qsci/qsciscintilla.h>
#undef slots
#undef signals
