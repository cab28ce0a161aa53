// What loading an entry of a parameter file changes in the temporary space: first determined, then carried
// out.
#ifndef TALUX_FILES_EFFECT_H
#define TALUX_FILES_EFFECT_H

#include <optional>

#include "ParamSystem/files/Reader.h"
#include "ParamSystem/store/Values.h"

namespace talux {

enum class Outcome {
    noEntry,     // the line is no entry
    unknownName, // skipped: files may come from another version
    runTime,     // skipped: the parameter is no setting
    otherType,   // skipped: a text of another type than the wanted one
    notANumber,  // skipped with a message
    noSlot,      // a template or a command: it is not stored
    stored,
};

struct Effect {
    Outcome outcome = Outcome::noEntry;
    const stParamProperties* row = nullptr; // of a known name
    std::optional<Value> value; // as read, of noSlot and stored; storedAs returns what the slot then has
};

// `wantedType`: the only text-like type to load, or 0.
Effect effectOf(const Entry& entry, int wantedType = 0);

void carryOut(const Effect& effect);

} // namespace talux

#endif
