#include "tools/generator/RowRules.h"

#include <algorithm>
#include <map>
#include <set>

#include "ParamSystem/dictionary/Ids.h"
#include "ParamSystem/rules/Facts.h"
#include "ParamSystem/store/Kinds.h"
#include "support/Text.h"
#include "tools/generator/TextPattern.h"
#include "tools/reference/Reference.h"

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

std::string small(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), lowerAscii);
    return text;
}

int levelOfSetting(const Parameter& p) {
    return isNumber(p) && p.family->kind == parameters::kSecurityFamily ? 3 : 1;
}

// ---- Ids -----------------------------------------------------------------------------------------------

struct NamedBlock {
    const char* kind;
    IdBlock ids;
};

NamedBlock blockOf(const Parameter& p) {
    if (p.isTemplate()) return {"template", kTemplateIds};
    const Type& type = typeOf(p.properties());
    if (type.code == kTypeCommand) return {type.name, kCommandIds};
    const Block& block = talux::blockOf(type.kind);
    return {type.kind == Kind::Ip ? "address" : type.name, {block.first, block.count}};
}

std::string range(int first, int last) {
    return first == last ? std::to_string(first) : std::to_string(first) + ".." + std::to_string(last);
}

// Rows whose ids continue those of the row before them in their block: of two rows with one id, probably the
// older one.
std::set<const parameters::Row*> rowsInSequence(const std::vector<Parameter>& all) {
    std::map<int, int> last; // id by the first of the block
    std::set<const parameters::Row*> rows;
    for (const Parameter& p : all) {
        const auto [before, isFirst] = last.emplace(blockOf(p).ids.first, p.id());
        if (p.number == 0 && !isFirst && p.id() == before->second + 1) rows.insert(p.row);
        before->second = p.id();
    }
    return rows;
}

// The parameters by what distinguishes them.
class Register {
public:
    explicit Register(const std::vector<Parameter>& all) : inSequence(rowsInSequence(all)) {
        for (const Parameter& p : all) {
            taken.insert(p.id());
            ids[idOf(p)].push_back(&p);
            if (!p.isTemplate() && !p.isLaterElement()) names.emplace(small(p.name), &p);
            for (const Symbol& symbol : symbolsOf(p))
                symbols.emplace(small(symbol.name), &p);
        }
    }

    // The other parameter with its id, if this is the one that should have another; or null.
    const Parameter* ownerOfId(const Parameter& p) const {
        const std::vector<const Parameter*>& owners = ids.at(idOf(p));
        const Parameter *const first = owners.front(), *const last = owners.back();
        const bool isFirstNew = inSequence.contains(last->row) && !inSequence.contains(first->row);
        if (owners.size() == 1 || &p == (isFirstNew ? last : first)) return nullptr;
        return isFirstNew ? last : first;
    }
    const Parameter* ownerOfName(const Parameter& p) const {
        return p.isTemplate() || p.isLaterElement() ? &p : names.at(small(p.name));
    }
    const Parameter* ownerOfSymbols(const Parameter& p) const {
        for (const Symbol& symbol : symbolsOf(p))
            if (symbols.at(small(symbol.name)) != &p) return symbols.at(small(symbol.name));
        return &p;
    }
    const stParamProperties* find(int id) const {
        const auto found = ids.find({id, false});
        return found == ids.end() ? nullptr : &found->second.front()->properties();
    }
    std::string freeIdsOf(const IdBlock& block) const {
        std::string list;
        for (int id = block.first; id < block.first + block.count; ++id) {
            if (taken.contains(id)) continue;
            const int first = id;
            while (id + 1 < block.first + block.count && !taken.contains(id + 1))
                ++id;
            list += (list.empty() ? "" : ", ") + range(first, id);
        }
        return list.empty() ? "none" : list;
    }

private:
    // The ints lie in the block of the longs: an id may belong to one of each.
    static std::pair<int, bool> idOf(const Parameter& p) { return {p.id(), p.properties().type == kTypeInt}; }

    std::map<std::pair<int, bool>, std::vector<const Parameter*>> ids;
    std::map<std::string, const Parameter*> names, symbols;
    std::set<int> taken;
    std::set<const parameters::Row*> inSequence;
};

// ---- Rules ---------------------------------------------------------------------------------------------

std::string another(const Parameter& other, const char* what) {
    return "another row has the same " + std::string(what) + ": " + other.stem() + " in " +
           fileAndLine(other.row->where);
}

std::string objectToId(const Parameter& p, const Register& all) {
    const auto [kind, ids] = blockOf(p);
    const Parameter* const owner = all.ownerOfId(p);
    if (ids.holds(p.id()) && owner == nullptr) return {};
    const std::string fault = owner != nullptr ? another(*owner, "id")
                                               : "the id " + std::to_string(p.id()) +
                                                     " lies outside the block of its type, " + kind + " " +
                                                     range(ids.first, ids.first + ids.count - 1);
    return fault + "; free: " + all.freeIdsOf(ids);
}

std::string objectToName(const Parameter& p, const Register& all) {
    if (!isName(p.stem())) return "a name consists of letters, digits and underscores";
    if (const Parameter* const owner = all.ownerOfName(p); owner != &p) return another(*owner, "name");
    const Parameter* const owner = all.ownerOfSymbols(p);
    return owner == &p ? "" : another(*owner, "symbol");
}

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
    {"an id that stands for an int too belongs to a run-time value", // a commit copies one slot by id
     [](const auto& p, const auto&) { return !p.isSetting() || !holds(Kind::Int, p.id()); }},
    {"only run-time values have indexes",
     [](const auto& p, const auto&) { return !p.isIndexed() || p.properties().is_volatile != 0; }},
    {"a series has at least two members",
     [](const auto& p, const auto&) { return !p.isIndexed() || p.row->last >= 2; }},
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
    {"a setting of this family names its method: .of = {kQu2, kThreshold}",
     [](const auto& p, const auto&) {
         return p.family->kind != parameters::kMethodFamily || p.row->of.method != parameters::kNoMethod;
     }},
};

// The default is a value like any other; the clock has none.
std::string objectToDefault(const Parameter& p) {
    const stParamProperties& row = p.properties();
    const Kind kind = typeOf(row).kind;
    if (!p.isSetting() || kind == Kind::SysDate || kind == Kind::SysTime) return {};
    rules::Facts facts = rules::factsOf(row, p.row->form);
    facts.isReadOnly = false;
    if (isText(row)) facts.bytes = static_cast<int>(talux::blockOf(kind).slotSize) - 1;
    const auto objection = isText(row) ? rules::check(facts, std::string_view(row.val_def_text))
                                       : rules::check(facts, row.val_def);
    const std::string limits =
        reference::shortNumber(facts.lowest()) + " to " + reference::shortNumber(facts.highest());
    return objection ? "the default " + reference::describe(objection, limits, kEnglish) : "";
}

std::string objectTo(const Parameter& p, const Register& all) {
    if (std::string objection = objectToName(p, all); !objection.empty()) return objection;
    if (std::string objection = objectToId(p, all); !objection.empty()) return objection;
    const auto* const broken = std::find_if(std::begin(kRules), std::end(kRules),
                                            [&](const Rule& rule) { return !rule.holds(p, all); });
    return broken == std::end(kRules) ? objectToDefault(p) : broken->text;
}

// A name that no parameter or template has, or nothing.
std::string strangerIn(const char* names, const std::set<std::string>& known) {
    for (const std::string& name : namesOf(names))
        if (!known.contains(name)) return name;
    return {};
}

} // namespace

void checkRows(const std::vector<Parameter>& parameters, Faults& faults) {
    const Register all(parameters);
    const parameters::Row* reported = nullptr; // one fault is enough for a series
    for (const Parameter& p : parameters) {
        if (p.row == reported) continue;
        const std::string objection = objectTo(p, all);
        if (objection.empty()) continue;
        faults.push_back({p.row->where, p.stem(), objection});
        reported = p.row;
    }
}

void checkNotes(std::span<const parameters::Family> families, const std::vector<Parameter>& parameters,
                Faults& faults) {
    std::set<std::string> known;
    for (const Parameter& p : parameters)
        known.insert((p.isTemplate() ? "TPL_" : "") + p.stem());
    for (const parameters::Family& family : families) {
        for (const parameters::Note& note : family.notes) {
            const std::string stranger = strangerIn(note.names, known);
            if (!stranger.empty())
                faults.push_back({note.where, "a note", "no parameter is called " + stranger});
            if (*note.de == '\0' || *note.en == '\0')
                faults.push_back({note.where, "a note", "it is missing in one language"});
        }
    }
}

} // namespace talux::generator
