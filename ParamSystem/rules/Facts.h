// What the rules need to know of a row of the dictionary.
#ifndef TALUX_RULES_FACTS_H
#define TALUX_RULES_FACTS_H

#include "ParamSystem/dictionary/Types.h"
#include "ParamSystem/rules/Rules.h"

namespace talux::rules {

// Of all parameters of a type. The rows of some have a stricter form (parameters/Row.h).
constexpr Form formOf(const Type& type) {
    switch (type.nature) {
    case Nature::none:
    case Nature::record:
        break;
    case Nature::number:
        return type.kind == Kind::Float || type.kind == Kind::Double ? Form::number
               : type.kind == Kind::Enum                             ? Form::choice
               : type.kind == Kind::Bool                             ? Form::flag
                                                                     : Form::whole;
    case Nature::text:
        return Form::text;
    case Nature::address:
        return type.code == kTypeIpMask ? Form::netmask : Form::address;
    case Nature::date:
        return Form::date;
    case Nature::time:
        return Form::time;
    }
    return Form::none;
}

constexpr Facts factsOf(const stParamProperties& row, Form form) {
    return {.form = form,
            .isReadOnly = isReadOnly(row),
            .min = row.val_min,
            .max = row.val_max,
            .characters = row.val_len > 0 ? row.val_len : kAnyLength};
}

constexpr Facts factsOf(const stParamProperties& row) {
    return factsOf(row, formOf(typeOf(row)));
}

} // namespace talux::rules

#endif
