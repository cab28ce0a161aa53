// Change flags and display states that the device's programs share.
#ifndef TALUX_TEXTS_STATE_H
#define TALUX_TEXTS_STATE_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kState[] = {
    value("ParamChanged", {"Parameter geändert", "Parameters changed"},
          {"Wird gesetzt, wenn Parameter übernommen wurden; die Programme des Geräts lesen sie dann neu",
           "Set when parameters were applied; the device's programs then read them anew"}),
};

} // namespace talux::texts

#endif
