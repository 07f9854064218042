#pragma once

#include "platform/NativePath.h"

// Copying the planner database from one folder to another.
namespace velmora {

// Makes `to` a copy of the planner database `from`, whatever was there; that is kept beside it as
// the generation before ("qel.previous.mdb"), in the place of the one kept earlier. Nothing
// happens when both are one file, or hold the same bytes. The copy is whole even while other
// copies of the program write to `from`.
//
// Throws Failure when `from` is no planner database or when the copy can not be written, and
// StorageFailure (Obstacle::InUse) when either file is in use for more than a fifth of a second;
// what was at `to` is then still there.
void copyPlannerDatabase(const NativePath& from, const NativePath& to);

}  // namespace velmora
