// Fault recorder.
#ifndef TALUX_TEXTS_RECORDER_H
#define TALUX_TEXTS_RECORDER_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kRecorder[] = {
    value("rec_posttrig_t", {"Nachlaufzeit", "Post-trigger time"},
          {"Aufzeichnungsdauer nach dem Auslösen", "Recording time after the trigger"}, "ms"),
};

} // namespace talux::texts

#endif
