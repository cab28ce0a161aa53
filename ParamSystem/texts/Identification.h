// Station, feeder, language, clock.
#ifndef TALUX_TEXTS_IDENTIFICATION_H
#define TALUX_TEXTS_IDENTIFICATION_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kIdentification[] = {
    choice("Language", {"Sprache", "Language"},
           {"Sprache von Anzeige und Texten", "Language of display and texts"},
           {"Deutsch|Englisch", "German|English"}),
};

} // namespace talux::texts

#endif
