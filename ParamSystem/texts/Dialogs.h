// The device's dialogs.
#ifndef TALUX_TEXTS_DIALOGS_H
#define TALUX_TEXTS_DIALOGS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kDialogs[] = {
    dialog("TPL_DLG_Test", {"Information", "Information"}, {"Bitte warten...", "Please wait..."}),
};

} // namespace talux::texts

#endif
