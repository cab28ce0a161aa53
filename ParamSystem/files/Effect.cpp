#include "ParamSystem/files/Effect.h"

#include "ParamSystem/dictionary/Lookup.h"
#include "ParamSystem/rules/Facts.h"
#include "support/Parse.h"

namespace talux {

namespace {

// The value is built in its place, which spares a load two copies of it per line.
Outcome readText(std::string_view text, int wantedType, Effect& effect) {
    if (wantedType != 0 && wantedType != effect.row->type) return Outcome::otherType;
    effect.value.emplace(text);
    return Outcome::stored;
}

Outcome readNumber(std::string_view text, Effect& effect) {
    const std::optional<double> number = numberIn(text);
    if (rules::check(rules::factsOf(*effect.row), number, rules::kLoadingRefuses)) return Outcome::notANumber;
    effect.value.emplace(*number);
    return Outcome::stored;
}

Outcome read(const Entry& entry, int wantedType, Effect& effect) {
    if (entry.form != LineForm::entry) return Outcome::noEntry;
    const stParamProperties* const row = effect.row = findParameter(entry.name);
    if (row == nullptr) return Outcome::unknownName;
    if (row->is_volatile == 1) return Outcome::runTime;
    const Type& type = typeOf(*row);
    const Outcome outcome =
        isText(type.nature) ? readText(entry.value, wantedType, effect) : readNumber(entry.value, effect);
    return outcome == Outcome::stored && !holds(type.kind, row->id) ? Outcome::noSlot : outcome;
}

} // namespace

Effect effectOf(const Entry& entry, int wantedType) {
    Effect effect;
    effect.outcome = read(entry, wantedType, effect);
    return effect;
}

void carryOut(const Effect& effect) {
    if (effect.outcome == Outcome::stored) writeValue(Space::temp, effect.row->id, *effect.value);
}

} // namespace talux
