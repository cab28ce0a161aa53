#include "tools/talux/LineReader.h"

#include <csignal>
#include <cstdio>
#include <iostream>

#include "tools/talux/Show.h"

#ifdef TALUX_HAVE_LIBEDIT
#include <clocale>
#include <histedit.h>

#include "ParamSystem/kepl/Decision.h"
#include "ParamSystem/kepl/Words.h"
#include "support/Text.h"
#endif

namespace talux::tool {

namespace {

constexpr char kPrompt[] = "kepl> ";

#ifdef TALUX_HAVE_LIBEDIT

// What the Tab key offers after `head`, the line up to the cursor.
class Completion {
public:
    struct Candidate {
        std::string text;  // takes the place of what was typed
        std::string label; // what it is shown as in a list
    };
    std::string_view typed; // before the cursor: what a candidate replaces
    std::vector<Candidate> candidates;

    Completion(std::string_view head, const Context& context) {
        const std::string_view term = kepl::withoutLeading(head.substr(head.find_last_of(',') + 1), ' ');
        if (startsIgnoringCase(head, kHelpWord) && head.size() > kHelpWord.size())
            offerNames(kepl::withoutLeading(head.substr(kHelpWord.size()), ' '), false);
        else if (const auto sign = term.find('='); sign != term.npos)
            offerValues(term.substr(0, sign), kepl::withoutLeading(term.substr(sign + 1), ' '), context);
        else if (const auto blank = term.find(' '); blank != term.npos)
            offerOptions(term.substr(0, blank), term.substr(term.find_last_of(' ') + 1));
        else
            offerWords(term, head.size() == term.size());
    }

    // What all candidates begin with, letter case aside.
    std::string_view common() const {
        std::string_view shared = candidates[0].text;
        for (const auto& [text, label] : candidates)
            while (!startsIgnoringCase(text, shared))
                shared.remove_suffix(1);
        return shared;
    }

private:
    void offer(std::string_view start, std::string_view text, const std::string& label = "") {
        if (!startsIgnoringCase(text, start)) return;
        typed = start;
        candidates.push_back({std::string(text), label.empty() ? std::string(text) : label});
    }

    // With the prefix or without; it is put in front.
    void offerNames(std::string_view start, bool withPrefix) {
        constexpr std::string_view kPrefix = kepl::kPrefixes[0];
        const bool isPrefixed = kepl::hasPrefix(start);
        const std::string_view wanted = start.substr(isPrefixed ? kPrefix.size() : 0);
        const auto begins = [&](const Parameter& each) { return startsIgnoringCase(each.name(), wanted); };
        for (const Parameter* parameter : reference::chosen(begins)) {
            const std::string name(parameter->name());
            candidates.push_back({joined({withPrefix || isPrefixed ? kPrefix : "", name}), name});
            typed = start;
        }
    }

    void offerWords(std::string_view start, bool beginsLine) {
        if (beginsLine)
            for (const std::string_view word : {kHelpWord, kQuitWord, kUndoWord, kDiscardWord})
                offer(start, word);
        for (const kepl::CommandRow& row : kepl::kCommands)
            offer(start, row.word);
        if (!start.empty()) offerNames(start, true);
    }

    // Records and indexed parameters take options.
    void offerOptions(std::string_view name, std::string_view start) {
        const Parameter* const parameter = reference::find(name);
        if (parameter == nullptr || !(parameter->isIndexed() || parameter->type().nature == Nature::record))
            return;
        for (const kepl::StyleRow& row : kepl::kStyles)
            if (!row.option.empty()) offer(start, row.option);
    }

    void offerValues(std::string_view left, std::string_view start, const Context& context) {
        const Parameter* const parameter = reference::find(left.substr(0, left.find(' ')));
        if (parameter == nullptr) return;
        for (const auto& [number, text] : parameter->choices(context.language))
            offer(start, std::to_string(number), fill("{} = {}", {std::to_string(number), text}));
        if (parameter->type().kind == Kind::Bool)
            for (const char* flag : {"0", "1"})
                offer(start, flag);
    }
};

class Edited {
public:
    Edited(std::string file, const Context& person) : historyFile(std::move(file)), context(person) {
        std::setlocale(LC_CTYPE, "");
        std::signal(SIGINT, [](int) {}); // while a line is carried out: ends its shell command alone
        history(past.get(), &event, H_SETSIZE, 1000);
        history(past.get(), &event, H_SETUNIQUE, 1);
        if (!historyFile.empty()) history(past.get(), &event, H_LOAD, historyFile.c_str());
        el_set(editor.get(), EL_CLIENTDATA, this);
        el_set(
            editor.get(), EL_PROMPT, +[](EditLine*) { return const_cast<char*>(kPrompt); });
        el_set(editor.get(), EL_EDITOR, "emacs");
        el_set(editor.get(), EL_HIST, history, past.get());
        el_set(editor.get(), EL_ADDFN, "talux-complete", "Completes names and values", completeKey);
        el_set(editor.get(), EL_BIND, "^I", "talux-complete", nullptr);
        el_set(editor.get(), EL_ADDFN, "talux-give-up", "Gives the line up", giveUpKey);
        el_set(editor.get(), EL_BIND, "^C", "talux-give-up", nullptr);
        el_set(editor.get(), EL_SETTY, "-d", "-isig", nullptr); // a key like others while a line is edited
        el_set(editor.get(), EL_BIND, "^R", "em-inc-search-prev", nullptr);
    }

    std::optional<std::string> next() {
        int count = 0;
        isGivenUp = false;
        el_set(editor.get(), EL_PREP_TERM, 1); // before the prompt: what is typed after it is for the editor
        const char* const text = el_gets(editor.get(), &count);
        if (isGivenUp) return std::string();
        if (text == nullptr || count <= 0) {
            print("\n");
            return {};
        }
        std::string line(text, static_cast<std::size_t>(count));
        line.erase(line.find_last_not_of("\r\n") + 1);
        if (!line.empty()) remember(line);
        return line;
    }

private:
    const std::string historyFile;
    const Context& context;
    const std::unique_ptr<History, decltype(&history_end)> past{history_init(), history_end};
    const std::unique_ptr<EditLine, decltype(&el_end)> editor{el_init("talux", stdin, stdout, stderr),
                                                              el_end};
    HistEvent event{}; // what it says of a call
    bool isGivenUp = false;

    // Saved at once: the session may end any time.
    void remember(const std::string& line) {
        history(past.get(), &event, H_ENTER, line.c_str());
        if (!historyFile.empty()) history(past.get(), &event, H_SAVE, historyFile.c_str());
    }

    static Edited& of(EditLine* editor) {
        void* self = nullptr;
        el_get(editor, EL_CLIENTDATA, &self);
        return *static_cast<Edited*>(self);
    }

    static unsigned char giveUpKey(EditLine* editor, int /*key*/) {
        of(editor).isGivenUp = true;
        print("^C\n");
        return CC_NEWLINE;
    }

    static unsigned char completeKey(EditLine* editor, int /*key*/) {
        const LineInfo* const line = el_line(editor);
        const std::string_view head(line->buffer, static_cast<std::size_t>(line->cursor - line->buffer));
        const Completion completion(head, of(editor).context);
        if (completion.candidates.empty()) return CC_REFRESH_BEEP;
        const bool isOne = completion.candidates.size() == 1;
        const std::string text(completion.common());
        if (text.size() > completion.typed.size() || (isOne && text != completion.typed)) {
            el_deletestr(editor, static_cast<int>(completion.typed.size()));
            el_insertstr(editor, text.c_str());
            return CC_REFRESH;
        }
        if (!isOne) showList(completion.candidates);
        return isOne ? CC_REFRESH : CC_REDISPLAY;
    }

    // Choices with texts one below the other, names side by side.
    static void showList(const std::vector<Completion::Candidate>& candidates) {
        constexpr std::size_t kColumns = 80, kMost = 120;
        std::size_t widest = 1;
        for (const auto& [unused, label] : candidates)
            widest = std::max(widest, width(label) + 2);
        const std::size_t perLine = std::max<std::size_t>(1, kColumns / widest);
        std::string text = "\n";
        for (std::size_t k = 0; k < std::min(candidates.size(), kMost); ++k)
            text += (k + 1) % perLine == 0 ? candidates[k].label + "\n" : padded(candidates[k].label, widest);
        print(text + (candidates.size() > kMost ? "..\n" : "\n"));
    }
};

#endif

} // namespace

LineReader lineReader(bool isPerson, [[maybe_unused]] const std::string& historyFile,
                      [[maybe_unused]] const Context& context) {
#ifdef TALUX_HAVE_LIBEDIT
    if (isPerson) return [editor = std::make_shared<Edited>(historyFile, context)] { return editor->next(); };
#endif
    return [isPerson]() -> std::optional<std::string> {
        if (isPerson) print(kPrompt);
        std::fflush(stdout);
        std::string line;
        if (!std::getline(std::cin, line)) return {};
        if (line.ends_with('\r')) line.pop_back();
        return line;
    };
}

} // namespace talux::tool
