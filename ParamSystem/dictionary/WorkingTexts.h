// The working table of texts, which the look-ups read and the loaders fill.
#ifndef TALUX_DICTIONARY_WORKINGTEXTS_H
#define TALUX_DICTIONARY_WORKINGTEXTS_H

#include "ParamSystem/TALUX_ParamStrings.h"

namespace talux {

// Row 0 stands for "not found"; a row with id 0 behind it ends the table.
extern stParamText ParamText[kParamTextRows];

// Ends the table before `row`: all rows from there on become empty, but row 0 never loses its text.
void endTextTable(int row);

} // namespace talux

#endif
