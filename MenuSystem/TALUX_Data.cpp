#include "MenuSystem/TALUX_Data.h"

#include <cstdlib>
#include <cstring>
#include <string_view>

#include "MenuSystem/Fields.h"
#include "support/Parse.h"
#include "support/Text.h"

using namespace talux::fields;

namespace {

// Texts read, each with its NUL, one after the other.
constinit char acDataStringSpace[kDataStringSpaceSize];
constinit char* pSpacePtr = nullptr; // first free byte; null until the first reset

template <typename Number>
Number takeNumber(const FieldSource& source, talux::ParseResult (*parse)(std::string_view, Number*)) {
    Number number{};
    if (parse(takeField(source), &number) != talux::kParsed) endWithInvalidValue(source);
    return number;
}

} // namespace

void talux::fields::endWithError(const FieldSource& source, const char* what) {
    std::printf("\nError (%s): no %s for field '%s'\n", source.modulename, what, source.fieldname);
    std::fclose(source.file); // NOLINT(cert-err33-c): the process ends
    std::exit(2);             // NOLINT(concurrency-mt-unsafe)
}

void talux::fields::endWithInvalidValue(const FieldSource& source) {
    endWithError(source, "valid value");
}

char* talux::fields::takeField(const FieldSource& source) {
    if (!source.tokenizer->hasMoreTokens()) endWithError(source, "value");
    char* const token = source.tokenizer->nextToken("\t\n");
    if (token == nullptr) endWithInvalidValue(source);
    return token;
}

void Data_StringReset() {
    pSpacePtr = acDataStringSpace;
}

char* Data_StringSave(const char* txt) {
    if (pSpacePtr == nullptr) return nullptr;
    const auto available = static_cast<std::size_t>(acDataStringSpace + kDataStringSpaceSize - pSpacePtr);
    const std::size_t size = std::strlen(txt) + 1;
    if (size > available) return nullptr;
    char* const copy = pSpacePtr;
    std::memcpy(copy, txt, size);
    pSpacePtr += size;
    return copy;
}

char* Data_StringSave(char* txt) {
    return Data_StringSave(static_cast<const char*>(txt));
}

void Data_SetInt(const char* modulename, int* field, const char* fieldname, StringTokenizer* pTokenizer,
                 FILE* fd_src) {
    *field = static_cast<int>(takeNumber({modulename, fieldname, pTokenizer, fd_src}, talux::parseLong));
}

void Data_SetDouble(const char* modulename, double* field, const char* fieldname, StringTokenizer* pTokenizer,
                    FILE* fd_src) {
    *field = takeNumber({modulename, fieldname, pTokenizer, fd_src}, talux::parseDouble);
}

void Data_SetText(const char* modulename, char** field, const char* fieldname, StringTokenizer* pTokenizer,
                  FILE* fd_src) {
    const FieldSource source{modulename, fieldname, pTokenizer, fd_src};
    const char* const token = takeField(source);
    const char* const first = std::strchr(token, '"');
    const char* const last = std::strrchr(token, '"');
    if (first == last || last - first - 1 > kDataMaxText) endWithInvalidValue(source);

    char text[kDataMaxText + 1];
    talux::copyText(text, {first + 1, last});
    char* const saved = Data_StringSave(text);
    if (saved == nullptr) endWithError(source, "string space");
    *field = saved;
}
