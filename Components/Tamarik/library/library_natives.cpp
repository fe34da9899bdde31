#include "Components/Tamarik/library/library_natives.h"

namespace tamarik {

void addLibrary(Natives& natives) {
    addTextPieces(natives);
    addTextForms(natives);
    addCharacters(natives);
    addSearches(natives);
    addFormats(natives);
    addConversions(natives);
    addNumberTexts(natives);
    addWholeParts(natives);
    addMath(natives);
    addDates(natives);
    addFinancial(natives);
    addInformation(natives);
    addChoices(natives);
    addInteraction(natives);
    addSettings(natives);
    addObjectMakers(natives);
    addDeclared(natives);
    addResources(natives);
    addTextStatements(natives);
    addRecordBytes(natives);
    addFileStatements(natives);
    addFilePrinting(natives);
    addFileReading(natives);
    addFileRecords(natives);
    addFolders(natives);
}

} // namespace tamarik
