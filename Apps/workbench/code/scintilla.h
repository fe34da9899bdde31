#pragma once
// The editing component, whose headers need the two words that Qt otherwise leaves to us.
#define slots Q_SLOTS
#define signals Q_SIGNALS
#include <Qsci/qscicommandset.h>
#include <Qsci/qscilexer.h>
#include <Qsci/qsciscintilla.h>
#undef slots
#undef signals
