#pragma once

#include <string>

#include "platform/AccessTableReader.h"
#include "platform/NativePath.h"

namespace velmora {

// Turns an Access planner database into Velmora's own kind, once, in its place.
class AccessConversion {
  public:
    explicit AccessConversion(AccessTableReader& reader) : reader_(reader) {}

    // Copies all rows of the table `appoint` with their six columns. The new file is built beside
    // and then takes the name; the original keeps existing under the name that comes back, in the
    // same folder ("qel.access-original.mdb", numbered when that is taken). Whenever it is broken
    // off, the file under the name is the original or the whole new one. Nothing happens, and the
    // empty text comes back, when another copy of the program has converted the file meanwhile.
    //
    // Throws Failure when the file can not be read or the new one not be written; the original is
    // then as it was.
    std::string convert(const NativePath& path);

  private:
    void copyRows(const NativePath& from, const NativePath& to);

    AccessTableReader& reader_;
};

}  // namespace velmora
