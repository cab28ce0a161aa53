#include "tools/talux/change/Journal.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

#include "ParamSystem/os/Files.h"
#include "ParamSystem/os/Os.h"
#include "tools/talux/Files.h"

namespace talux::tool {

namespace {

constexpr std::string_view kMark = "# talux change: ", kWhen = "# when: ", kWho = "# who: ",
                           kWhat = "# what: ", kReach = "# reach: ";
constexpr std::string_view kBegun = "begun", kDone = "done";
constexpr std::array<std::string_view, 4> kReaches{"pending", "live", "saved", "applied"};

bool isPlain(char c) {
    return static_cast<unsigned char>(c) >= ' ' && c != '\\' && c != '\x7F';
}

// On one line: a text in quotes, of which every byte comes back.
std::string encoded(const Parameter& parameter, const std::optional<Value>& value) {
    if (!value) return {};
    if (!value->isText()) return plain(parameter, *value);
    std::string text = "\"";
    for (const char c : std::string_view(value->text()))
        text += isPlain(c) ? std::string(1, c) : formatted("\\x%02X", static_cast<unsigned char>(c));
    return text + "\"";
}

std::optional<Value> decoded(std::string_view text) {
    if (!text.starts_with('"')) {
        const auto number = numberOf<double>(text);
        return number ? std::optional(Value(*number)) : std::nullopt;
    }
    std::string bytes;
    for (std::size_t k = 1; k + 1 < text.size(); ++k) {
        unsigned byte = static_cast<unsigned char>(text[k]);
        if (text[k] == '\\' && k + 3 < text.size()) {
            std::from_chars(text.data() + k + 2, text.data() + k + 4, byte, 16);
            k += 3;
        }
        bytes += static_cast<char>(byte);
    }
    return Value(bytes);
}

// Whether the line is one of those that begin with "#".
bool takeHead(Journal& journal, std::string_view line) {
    std::string reach;
    const std::pair<std::string_view, std::string*> kKeys[] = {
        {kWhen, &journal.when}, {kWho, &journal.who}, {kWhat, &journal.what}, {kReach, &reach}};
    for (const auto& [key, text] : kKeys)
        if (line.starts_with(key)) *text = line.substr(key.size());
    if (const auto* found = std::ranges::find(kReaches, reach); found != kReaches.end())
        journal.reach = static_cast<Reach>(found - kReaches.begin());
    return line.starts_with('#');
}

bool takeWrite(Journal& journal, std::string_view line) {
    std::string_view index = takeUpTo(line, '\t');
    Write write{reference::find(takeUpTo(index, '[')), 0, decoded(takeUpTo(line, '\t')), Value(0.0)};
    const auto to = decoded(takeUpTo(line, '\t'));
    std::from_chars(index.data(), index.data() + index.size(), write.index);
    if (write.parameter == nullptr || !to || !storedAs(write.id(), *to)) return false;
    write.to = *storedAs(write.id(), *to);
    if (write.from) write.from = storedAs(write.id(), *write.from);
    journal.writes.push_back(write);
    return true;
}

} // namespace

std::string whoAmI() {
    const passwd* const user = getpwuid(getuid());
    std::string who = user != nullptr ? user->pw_name : std::to_string(getuid());
    if (const char* const sudo = std::getenv("SUDO_USER")) who = joined({sudo, " as ", who});
    if (const char* const client = std::getenv("SSH_CONNECTION")) {
        std::string_view address = client;
        who += joined({" from ", takeUpTo(address, ' ')});
    }
    return printable(who);
}

std::string namesIn(const std::vector<std::string>& assignments) {
    return list(assignments, " ", [](const std::string& each) { return each.substr(0, each.find('=')); });
}

std::optional<Journal> Journal::read(const std::string& path, const Context& context) {
    if (!os::exists(path.c_str())) return {};
    const std::string contents = contentsOf(path, context);
    std::string_view rest = contents;
    const std::string_view mark = takeUpTo(rest, '\n');
    Journal journal;
    journal.isDone = mark.ends_with(kDone);
    bool isKnown = mark.starts_with(kMark);
    int number = 1;
    for (; isKnown && !rest.empty(); ++number) {
        const std::string_view line = takeUpTo(rest, '\n');
        isKnown = takeHead(journal, line) || takeWrite(journal, line);
    }
    if (isKnown && contents.ends_with('\n')) return journal;
    context.fail("{}: is not a complete record of a change: see line {}",
                 "{}: ist kein ganzes Änderungsprotokoll: siehe Zeile {}", path, number);
}

std::string Journal::text(const Context& context) const {
    std::string text =
        joined({kMark, isDone ? kDone : kBegun, "\n", kWhen, when, "\n", kWho, who, "\n", kWhat,
                printable(what), "\n", kReach, kReaches[static_cast<std::size_t>(reach)], "\n"});
    for (const Write& write : writes)
        text += joined({write.label(), "\t", encoded(*write.parameter, write.from), "\t",
                        encoded(*write.parameter, write.to), "\t", write.parameter->title(context.language),
                        ": ", write.change(context), "\n"});
    return text;
}

std::string Journal::inWords(const Context& context) const {
    return list(writes, ", ", [&](const Write& write) {
        return joined({write.label(), " ", write.change(context)});
    });
}

Writes Journal::written() const {
    Writes found = writes;
    std::erase_if(found, [](const Write& write) { return !write.isChanged(); });
    return found;
}

std::string damageOf(const std::string& path, const Context& context) try {
    Journal::read(path, context);
    return {};
} catch (const CouldNot& damage) {
    return damage.what();
}

std::string lastChangeDamage(const Context& context) {
    const std::string damage = damageOf(lastChange(context), context);
    return damage.empty() ? damage
                          : context.say("{}; the next change replaces it",
                                        "{}; die nächste Änderung ersetzt es", damage);
}

std::string interruption(const Context& context) {
    if (const std::string damage = damageOf(openAddress(context), context); !damage.empty())
        return context.say("{}; remove the file to change settings; `talux discard` gives up what is pending",
                           "{}; zum Ändern die Datei entfernen; `talux discard` verwirft Ausstehendes",
                           damage);
    if (const auto open = Journal::read(openAddress(context), context))
        return context.say("'{}' of {} by {} waits for `talux confirm` or `talux undo`",
                           "'{}' vom {} durch {} wartet auf `talux confirm` oder `talux undo`", open->what,
                           open->when, open->who);
    if (!damageOf(lastChange(context), context).empty()) return {};
    const auto journal = Journal::read(lastChange(context), context);
    if (!journal || journal->isDone) return {};
    const Writes half = journal->written();
    if (half.empty() || std::ranges::all_of(journal->writes, &Write::isThere)) return {};
    return context.say(
        "'{}' of {} by {} was interrupted and is half written: {}; `talux undo` takes it back",
        "'{}' vom {} durch {} wurde unterbrochen und ist halb geschrieben: {}; `talux undo` nimmt "
        "es zurück",
        journal->what, journal->when, journal->who, list(half, ", ", std::mem_fn(&Write::label)));
}

} // namespace talux::tool
