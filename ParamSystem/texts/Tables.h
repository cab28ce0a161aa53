// Where the look-up of the texts of an id begins.
#ifndef TALUX_TEXTS_TABLES_H
#define TALUX_TEXTS_TABLES_H

#include <cstdint>

#include "ParamSystem/TALUX_ParamStrings.h"
#include "ParamSystem/dictionary/Ids.h"

namespace talux {

// Made by tools/generator.
extern const int kTexts; // compiled-in ones, from row 1 on
// By denseIndexOf(id): the first row with the id; 0 if there is none.
extern const std::uint16_t kTextRows[kDenseIndexCount];

// Whether the working table has texts of a file instead of the compiled-in ones.
extern constinit bool areTextsOfFile;

} // namespace talux

#endif
