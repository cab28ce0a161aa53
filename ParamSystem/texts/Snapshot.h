// Snapshot of the measured values.
#ifndef TALUX_TEXTS_SNAPSHOT_H
#define TALUX_TEXTS_SNAPSHOT_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kSnapshot[] = {
    value(
        "mw_req", {"Messwertanforderung", "Snapshot request"},
        {"Fordert einen Satz gleichzeitiger Messwerte an", "Requests a set of simultaneous measured values"}),
};

} // namespace talux::texts

#endif
