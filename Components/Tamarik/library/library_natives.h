#pragma once
// The language's library, a function for each group.
#include "Components/Tamarik/natives/natives.h"

namespace tamarik {

void addTextPieces(Natives& natives);
void addTextForms(Natives& natives);
void addCharacters(Natives& natives);
void addSearches(Natives& natives);
void addFormats(Natives& natives);
void addConversions(Natives& natives);
void addMath(Natives& natives);
void addDates(Natives& natives);
void addFinancial(Natives& natives);
void addInformation(Natives& natives);
void addChoices(Natives& natives);
void addInteraction(Natives& natives);
void addSettings(Natives& natives);
/// Hex, Oct, Str and Val.
void addNumberTexts(Natives& natives);
/// Abs, Int, Fix, Round and Sgn, which keep the type of their argument.
void addWholeParts(Natives& natives);
void addObjectMakers(Natives& natives);
/// Functions of the operating system that programs declare.
void addDeclared(Natives& natives);
/// LoadResString and its relatives.
void addResources(Natives& natives);
/// LSet, RSet and the Mid statement.
void addTextStatements(Natives& natives);

/// LSet between variables of two Types.
void addRecordBytes(Natives& natives);

void addFileStatements(Natives& natives);
void addFilePrinting(Natives& natives);
void addFileReading(Natives& natives);
void addFileRecords(Natives& natives);
void addFolders(Natives& natives);

/// All of them.
void addLibrary(Natives& natives);

} // namespace tamarik
