#include <cmath>
#include <cstring>

#include "ParamSystem/TALUX_Funcs.h"
#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/dictionary/Types.h"
#include "ParamSystem/kepl/Clock.h"
#include "ParamSystem/kepl/Variable.h"
#include "ParamSystem/os/Os.h"
#include "ParamSystem/support/Text.h"

namespace talux::kepl {

namespace {

constexpr int kWriteLevel = 2;
constexpr int kSecurityLevel = 3;

// The measurement snapshot may be requested by everybody who may read it.
constexpr std::string_view kOpenToReaders = "mw_req";

// A text that begins with a double quote loses its first and its last character.
char* unquoted(char* text) {
    if (*text != '"') return text;
    text[std::strlen(text) - 1] = '\0';
    return text + 1; // of a lone quote, its NUL
}

} // namespace

Refusal VariableRequest::write() {
    if (uid < kWriteLevel && !equalIgnoringCase(term.name(), kOpenToReaders)) return refuse(szUIDWrong);
    if (*term.value() == '\0') return refuse(szSyntaxError);
    const stParamProperties* const row = GetParamPropertiesByName(term.name());
    if (row == nullptr) return refuse(szSyntaxError);
    if (row->userlevel >= kSecurityLevel) os::logInfo("sec param: %s", wholeTerm);
    if (row->val_access == kReadOnly) return refuse(szReadOnly);
    if (uid < row->userlevel) return refuse(szUIDWrong);
    if (const Refusal refusal = indexPresence(*row, term)) return refusal;
    if (term.indices() == 0) return writeValue(*row, row->id);
    if (const Refusal refusal = indexRange(*row, term.index1(), szIndexTooLow, szIndexTooHigh))
        return refusal;
    return writeValue(*row, elementId(*row, term.index1()));
}

Refusal VariableRequest::writeValue(const stParamProperties& row, int id) {
    switch (typeOf(row).nature) {
    case Nature::text:
    case Nature::address:
        return writeText(row, id);
    case Nature::date:
    case Nature::time:
        return writeClock(row, id);
    case Nature::none: // commands and records: the number is checked, the store keeps nothing
    case Nature::record:
    case Nature::number:
        break;
    }
    return writeNumber(row, id);
}

Refusal VariableRequest::writeText(const stParamProperties& row, int id) {
    writeStored(row, id, reinterpret_cast<double*>(unquoted(term.value())));
    if (row.type == kTypeIpAddress && term.indices() == 0) {
        VarSetSystemIPs();
        deliver(0.0, row.type);
    }
    return nullptr;
}

Refusal VariableRequest::writeClock(const stParamProperties& row, int id) {
    std::time_t seconds = 0;
    if (!clockFrom(term.value(), row.type, seconds)) return refuse(szSyntaxError);
    writeStored(row, id, reinterpret_cast<double*>(term.value()));
    os::setClock(seconds);
    os::runShell("hwclock --systohc --utc --noadjfile");
    deliver(0.0, row.type);
    return nullptr;
}

Refusal VariableRequest::writeNumber(const stParamProperties& row, int id) {
    double value = 0.0;
    if (MakeDouble(term.value(), &value) != 1) return refuse(szSyntaxError);
    if (std::isnan(value)) return refuse(szSyntaxError);
    if (value < row.val_min) return refuse(szValueTooLow);
    if (value > row.val_max) return refuse(szValueTooHigh);
    writeStored(row, id, &value);
    return nullptr;
}

} // namespace talux::kepl
