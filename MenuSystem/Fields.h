// What the functions that set one field of a record share.
#ifndef TALUX_MENUSYSTEM_FIELDS_H
#define TALUX_MENUSYSTEM_FIELDS_H

#include <cstdio>

#include "MenuSystem/TALUX_StringTokenizer.h"

namespace talux::fields {

// One field: who reads it, and where it comes from.
struct FieldSource {
    const char* modulename;
    const char* fieldname;
    StringTokenizer* tokenizer;
    FILE* file;
};

// Ends the process with status 2, the file closed and the field named.
[[noreturn]] void endWithError(const FieldSource& source, const char* what);
[[noreturn]] void endWithInvalidValue(const FieldSource& source);

// The next field; the process ends when there is none. From here on the record is split at tab and newline,
// so fields may contain blanks.
char* takeField(const FieldSource& source);

} // namespace talux::fields

#endif
