#include "tools/talux/Completion.h"

#include <algorithm>

#include "ParamSystem/kepl/Decision.h"
#include "ParamSystem/kepl/Words.h"
#include "support/Text.h"
#include "tools/talux/Show.h"
#include "tools/talux/Text.h"

namespace talux::tool {

namespace {

constexpr std::string_view kPrefix = kepl::kPrefixes[0];

class Completer {
public:
    explicit Completer(const Context& person) : context(person) {}

    Completion run(std::string_view head) {
        const std::string_view term = kepl::withoutLeading(head.substr(head.find_last_of(',') + 1), ' ');
        if (startsIgnoringCase(head, kHelpWord) && head.size() > kHelpWord.size())
            names(kepl::withoutLeading(head.substr(kHelpWord.size()), ' '), false);
        else if (const auto sign = term.find('='); sign != term.npos)
            values(term.substr(4 < sign ? 4 : sign, sign < 4 ? 0 : sign - 4),
                   kepl::withoutLeading(term.substr(sign + 1), ' '));
        else if (const auto blank = term.find(' '); blank != term.npos)
            options(term.substr(0, blank), term.substr(term.find_last_of(' ') + 1));
        else
            firstWords(term, head.size() == term.size());
        return std::move(completion);
    }

private:
    const Context& context;
    Completion completion;

    void offer(std::string_view typed, std::string text, std::string label = {}) {
        if (!startsIgnoringCase(text, typed)) return;
        completion.typed = typed.size();
        if (label.empty()) label = text;
        completion.candidates.push_back({std::move(text), std::move(label)});
    }

    // With the prefix or without; it is put in front.
    void names(std::string_view typed, bool withPrefix) {
        std::string wanted(typed);
        const bool isPrefixed = kepl::hasPrefix(typed);
        if (isPrefixed) wanted.erase(0, kPrefix.size());
        for (const Parameter& parameter : reference::parameters()) {
            if (parameter.isTemplate() || !startsIgnoringCase(parameter.name(), wanted)) continue;
            const std::string name(parameter.name());
            completion.candidates.push_back(
                {withPrefix || isPrefixed ? std::string(kPrefix) + name : name, name});
        }
        if (!completion.candidates.empty()) completion.typed = typed.size();
    }

    void firstWords(std::string_view typed, bool beginsLine) {
        if (beginsLine)
            for (const std::string_view word : {kHelpWord, kQuitWord, kUndoWord, kDiscardWord})
                offer(typed, std::string(word));
        for (const kepl::CommandRow& word : kepl::kCommands)
            offer(typed, std::string(word.word));
        if (!typed.empty()) names(typed, true);
    }

    // Records and indexed parameters take options.
    void options(std::string_view name, std::string_view typed) {
        const Parameter* const parameter = reference::find(name);
        if (parameter == nullptr) return;
        if (!parameter->isIndexed() && parameter->type().nature != Nature::record) return;
        for (const kepl::StyleRow& row : kepl::kStyles)
            if (!row.option.empty()) offer(typed, std::string(row.option));
    }

    void values(std::string_view left, std::string_view typed) {
        const Parameter* const parameter = reference::find(left.substr(0, left.find(' ')));
        if (parameter == nullptr) return;
        for (const reference::Choice& choice : parameter->choices(context.language))
            offer(typed, std::to_string(choice.number),
                  fill("{} = {}", {std::to_string(choice.number), choice.text}));
        if (parameter->type().kind == Kind::Bool && completion.candidates.empty())
            for (const char* flag : {"0", "1"})
                offer(typed, flag);
    }
};

} // namespace

std::string Completion::common() const {
    if (candidates.empty()) return {};
    std::string_view shared = candidates[0].text;
    for (const Candidate& candidate : candidates) {
        std::size_t length = 0;
        while (length < std::min(shared.size(), candidate.text.size()) &&
               lowerAscii(shared[length]) == lowerAscii(candidate.text[length]))
            ++length;
        shared = shared.substr(0, length);
    }
    return std::string(shared);
}

Completion complete(std::string_view head, const Context& context) {
    return Completer(context).run(head);
}

} // namespace talux::tool
