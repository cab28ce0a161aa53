#include "ParamSystem/files/Effect.h"

#include "ParamSystem/dictionary/Lookup.h"
#include "ParamSystem/rules/Facts.h"
#include "support/Parse.h"

namespace talux {

namespace {

Effect keeping(const stParamProperties& row, const Value& value) {
    return {holds(typeOf(row).kind, row.id) ? Outcome::stored : Outcome::noSlot, &row, value};
}

Effect textEffect(const stParamProperties& row, const char* text, int wantedType) {
    if (wantedType != 0 && wantedType != row.type) return {Outcome::otherType, &row, {}};
    return keeping(row, Value(std::string_view(text)));
}

Effect numberEffect(const stParamProperties& row, const char* text) {
    const std::optional<double> number = numberIn(text);
    if (rules::check(rules::factsOf(row), number, rules::kLoadingRefuses))
        return {Outcome::notANumber, &row, {}};
    return keeping(row, Value(*number));
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
