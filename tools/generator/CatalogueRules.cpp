#include "tools/generator/CatalogueRules.h"

#include <algorithm>
#include <map>

#include "ParamSystem/catalogue/Family.h"
#include "ParamSystem/dictionary/Ids.h"
#include "ParamSystem/store/Kinds.h"
#include "ParamSystem/support/Text.h"

namespace talux::generator {
namespace {

bool isNumber(const Parameter& p) {
    return typeOf(p.properties()).nature == Nature::number;
}

// Letters, digits and underscores: what a line of the language takes for one word.
bool isName(std::string_view name) {
    return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) {
        return (c >= '0' && c <= '9') || (lowerAscii(c) >= 'a' && lowerAscii(c) <= 'z') || c == '_';
    });
}

bool isIdOfItsType(const Parameter& p) {
    if (p.isTemplate()) return kTemplateIds.holds(p.id());
    if (p.properties().type == kTypeCommand) return kCommandIds.holds(p.id());
    return holds(typeOf(p.properties()).kind, p.id());
}

int levelOfSetting(const Parameter& p) {
    return isNumber(p) && p.family->kind == catalogue::kSecurityFamily ? 3 : 1;
}

// The parameters by what tells them apart; the first with it stands.
class Register {
public:
    explicit Register(const std::vector<Parameter>& parameters) {
        for (const Parameter& p : parameters) {
            ids.emplace(idOf(p), &p);
            if (!p.isTemplate() && !p.isLaterElement()) names.emplace(small(p.name()), &p);
            for (const Symbol& symbol : symbolsOf(p))
                symbols.emplace(small(symbol.name), &p);
        }
    }

    bool hasIdFirst(const Parameter& p) const { return ids.at(idOf(p)) == &p; }
    bool hasNameFirst(const Parameter& p) const {
        return p.isTemplate() || p.isLaterElement() || names.at(small(p.name())) == &p;
    }
    bool hasSymbolsFirst(const Parameter& p) const {
        const std::vector<Symbol> own = symbolsOf(p);
        return std::all_of(own.begin(), own.end(),
                           [&](const Symbol& symbol) { return symbols.at(small(symbol.name)) == &p; });
    }
    const stParamProperties* find(int id) const {
        const auto found = ids.find({id, false});
        return found == ids.end() ? nullptr : &found->second->properties();
    }

private:
    // The ints lie in the block of the longs: an id may belong to one of each.
    static std::pair<int, bool> idOf(const Parameter& p) { return {p.id(), p.properties().type == kTypeInt}; }
    static std::string small(std::string text) {
        std::transform(text.begin(), text.end(), text.begin(), lowerAscii);
        return text;
    }

    std::map<std::pair<int, bool>, const Parameter*> ids;
    std::map<std::string, const Parameter*> names, symbols;
};

bool fitsItsTemplate(const Parameter& p, const Register& all) {
    const int id = p.properties().id_template;
    const stParamProperties* const shared = id == 0 ? &p.properties() : all.find(id);
    return shared != nullptr && shared->type == p.properties().type &&
           shared->val_max == p.properties().val_max;
}

struct Rule {
    const char* text;
    bool (*holds)(const Parameter&, const Register&);
};

constexpr Rule kRules[] = {
    {"a name consists of letters, digits and underscores",
     [](const auto& p, const auto&) { return isName(p.stem()); }},
    {"another row has the same name", [](const auto& p, const auto& all) { return all.hasNameFirst(p); }},
    {"another row has the same symbol",
     [](const auto& p, const auto& all) { return all.hasSymbolsFirst(p); }},
    {"the id lies outside the block of its type",
     [](const auto& p, const auto&) { return isIdOfItsType(p); }},
    {"another row has the same id", [](const auto& p, const auto& all) { return all.hasIdFirst(p); }},
    {"an id that stands for an int too belongs to a run-time value", // a commit copies one slot by id
     [](const auto& p, const auto&) { return !p.isSetting() || !holds(Kind::Int, p.id()); }},
    {"only run-time values have indexes",
     [](const auto& p, const auto&) { return !p.isIndexed() || p.properties().is_volatile != 0; }},
    {"what has no value is no run-time value",
     [](const auto& p, const auto&) { return p.hasValue() || p.properties().is_volatile == 0; }},
    {"a run-time value has no default",
     [](const auto& p, const auto&) {
         const stParamProperties& row = p.properties();
         return row.is_volatile == 0 || (row.val_def == 0 && *row.val_def_text == '\0');
     }},
    {"the range is empty",
     [](const auto& p, const auto&) { return p.properties().val_min <= p.properties().val_max; }},
    {"a setting has at least two choices",
     [](const auto& p, const auto&) {
         const stParamProperties& row = p.properties();
         return row.type != kTypeEnum || !p.hasValue() || (row.val_max >= 2 && row.val_max != kNoMax);
     }},
    {"the default lies outside the range",
     [](const auto& p, const auto&) {
         const stParamProperties& row = p.properties();
         const double least = row.type == kTypeEnum ? std::max(1.0, row.val_min) : row.val_min;
         return !isNumber(p) || !p.isSetting() || (row.val_def >= least && row.val_def <= row.val_max);
     }},
    {"the default is longer than the text may be",
     [](const auto& p, const auto&) {
         const stParamProperties& row = p.properties();
         return row.val_len == catalogue::kNoLength ||
                std::string_view(row.val_def_text).size() <= static_cast<std::size_t>(row.val_len);
     }},
    {"a number in a security family takes user level 3, any other setting 1",
     [](const auto& p, const auto&) {
         return !p.isSetting() || p.properties().userlevel == levelOfSetting(p);
     }},
    {"the user level is 1, 2 or 3",
     [](const auto& p, const auto&) {
         return p.properties().userlevel >= 1 && p.properties().userlevel <= 3;
     }},
    {"the template is of another kind or range",
     [](const auto& p, const auto& all) { return fitsItsTemplate(p, all); }},
};

} // namespace

void checkCatalogue(std::span<const catalogue::Family> families, const std::vector<Parameter>& parameters,
                    Faults& faults) {
    for (const catalogue::Family& family : families)
        for (const catalogue::ParameterRow& row : family.rows)
            if (row.series != catalogue::ParameterRow::kSingle && row.count() < 2)
                faults.push_back({row.where, row.properties.name, "a series has at least two members"});
    const Register all(parameters);
    const catalogue::ParameterRow* reported = nullptr; // one fault is enough for a series
    for (const Parameter& p : parameters) {
        const auto broken = std::find_if(std::begin(kRules), std::end(kRules),
                                         [&](const Rule& rule) { return !rule.holds(p, all); });
        if (broken == std::end(kRules) || p.row == reported) continue;
        faults.push_back({p.row->where, p.stem(), broken->text});
        reported = p.row;
    }
}

} // namespace talux::generator
