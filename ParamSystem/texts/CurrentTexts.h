// The table of texts that the look-ups read: the compiled-in one, or one that was loaded from a file.
#ifndef TALUX_TEXTS_CURRENTTEXTS_H
#define TALUX_TEXTS_CURRENTTEXTS_H

#include "ParamSystem/TALUX_ParamStrings.h"

namespace talux {

// Row 0 stands for "not found"; the last row has id 0 and ends the table.
struct TextTable {
    const stParamText* rows;
    int count;
};

// Before texts are loaded it has no text, not even that of row 0.
extern constinit TextTable currentTexts;

} // namespace talux

#endif
