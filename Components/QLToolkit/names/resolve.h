#pragma once
// Gives declared names their types, and checks what concerns whole declarations.
#include "Components/QLToolkit/names/constants.h"
#include "Components/QLToolkit/names/record_size.h"

namespace qltoolkit {

/// Needs all modules declared. Constants may refer to those of any module, so all of them need their types first.
void resolveConstantTypes(Program& program, SourceModule& module, Constants& constants);

/// Needs the types of all constants. Afterwards the program does not change any more.
void resolveModule(Program& program, SourceModule& module, Constants& constants);

/// Gives a procedure that is not part of its module its signature.
void resolveProcedure(Program& program, SourceModule& module, Constants& constants, Entity& entity,
                      const ProcedureDecl& decl);

/// Needs all modules resolved: interfaces, handlers of events, records that contain themselves.
void checkDeclarations(Program& program, SourceModule& module, RecordSizes& sizes);

} // namespace qltoolkit
