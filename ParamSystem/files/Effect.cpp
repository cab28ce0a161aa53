#include "ParamSystem/files/Effect.h"

#include "ParamSystem/dictionary/Lookup.h"
#include "ParamSystem/rules/Facts.h"
#include "support/Parse.h"

namespace talux {

namespace {

// The value is constructed where it is returned: a copy, or an empty one to begin with, is twenty words each
// time.
template <class Given>
Effect storing(const stParamProperties& row, Given given) {
    return {holds(typeOf(row).kind, row.id) ? Outcome::stored : Outcome::noSlot, &row,
            std::optional<Value>(std::in_place, given)};
}

Effect textEffect(const stParamProperties& row, std::string_view text, int wantedType) {
    if (wantedType != 0 && wantedType != row.type) return {Outcome::otherType, &row, {}};
    return storing(row, text);
}

Effect numberEffect(const stParamProperties& row, std::string_view text) {
    const std::optional<double> number = numberIn(text);
    if (rules::check(rules::factsOf(row), number, rules::kLoadingRefuses))
        return {Outcome::notANumber, &row, {}};
    return storing(row, *number);
}

} // namespace

Effect effectOf(const Entry& entry, int wantedType) {
    if (entry.form != LineForm::entry) return {};
    const stParamProperties* const row = findParameter(entry.name);
    if (row == nullptr) return {Outcome::unknownName, nullptr, {}};
    if (row->is_volatile == 1) return {Outcome::runTime, row, {}};
    return isText(*row) ? textEffect(*row, entry.value, wantedType) : numberEffect(*row, entry.value);
}

void carryOut(const Effect& effect) {
    if (effect.outcome == Outcome::stored) writeValue(Space::temp, effect.row->id, *effect.value);
}

} // namespace talux
