// The detection methods.
#ifndef TALUX_TEXTS_EARTHFAULTMETHODS_H
#define TALUX_TEXTS_EARTHFAULTMETHODS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kEarthFaultMethods[] = {
    value("{qu2=Wischer,qui=qui,cos=Cos(phi),sin=Sin(phi)}_SigDur", {"Meldedauer {n}", "Signal duration {n}"},
          {"Dauer der Meldung des Verfahrens {n}", "Duration of the signal of the method {n}"}, "s"),
};

} // namespace talux::texts

#endif
