// Statistics and what they record.
#ifndef TALUX_TEXTS_STATISTICS_H
#define TALUX_TEXTS_STATISTICS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kStatistics[] = {
    label("stat_I{0..3}_max_enabled", {"Maximum I{n}", "Maximum I{n}"}),
};

} // namespace talux::texts

#endif
