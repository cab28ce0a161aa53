// The working table of texts, which the look-ups read and the loaders fill.
#ifndef TALUX_DICTIONARY_WORKINGTEXTS_H
#define TALUX_DICTIONARY_WORKINGTEXTS_H

#include "ParamSystem/TALUX_ParamStrings.h"

namespace talux {

// Row 0 stands for "not found"; a row with id 0 behind it ends the table.
extern stParamText ParamText[kParamTextRows];

// Makes all rows from `row` on empty, so that the table ends before it.
void endTextTable(int row);

} // namespace talux

#endif
