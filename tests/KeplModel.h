// A literal model of the command language. It works on the store itself and records what it would do to the
// machine.
#ifndef TALUX_TEST_KEPLMODEL_H
#define TALUX_TEST_KEPLMODEL_H

#include <cmath>
#include <optional>

#include "Machine.h"
#include "Store.h"
#include "tools/Strings.h"

namespace talux_test {

using talux::formatted;
using Words = std::vector<std::string>;
constexpr int kProcessEnds = -99; // stands for the result of a line
inline const std::string kSyntax = "<< SYNTAX ERROR >>", kRights = "<< RIGHTS TOO LOW >>",
                         kFull = "<< OUTPUT BUFFER EXCEEDED >>", kUntouched = "(untouched)";

inline std::string lower(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
    return text;
}

inline Words tokens(const std::string& text, const std::string& delimiters) {
    Words words;
    for (std::size_t end = 0, start; (start = text.find_first_not_of(delimiters, end)) < text.size();) {
        end = std::min(text.find_first_of(delimiters, start), text.size());
        words.push_back(text.substr(start, end - start));
    }
    return words;
}

inline std::string withoutBlanks(const std::string& text) {
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

// The first word of a text, as a whole, converted; why not: -1 no text, -2 no number.
template <typename Convert>
auto parse(const std::string& text, Convert convert, int& why) {
    const Words words = tokens(text, " ");
    char* end = nullptr;
    const auto value = convert(words.empty() ? "" : words[0].c_str(), &end);
    why = text.size() > 49 || words.empty() ? -1 : *end == '\0' ? 1 : -2;
    return why == 1 ? std::optional(value) : std::nullopt;
}
inline std::optional<double> makeDouble(const std::string& text) {
    int why;
    return parse(
        text, [](const char* word, char** end) { return std::strtod(word, end); }, why);
}
template <int base = 10>
std::int32_t longOf(const char* word, char** end) {
    const long long number = std::strtoll(word, end, base);
    return static_cast<std::int32_t>(std::clamp<long long>(number, INT32_MIN, INT32_MAX));
}
inline std::optional<std::int32_t> makeLong(const std::string& text) {
    int why;
    return parse(text, longOf<10>, why);
}

inline std::string print(double number, int type) {
    return std::isnan(number) ? "nan" : formatted(type >= 2004 && type <= 2010 ? "%.0f" : "%f", number);
}

inline int resultType(int left, int right) {
    const int chain[] = {2010, 2009, 2008, 2004, 2003, 2002}; // from the lowest
    const auto rank = [&](int type) { return std::find(chain, chain + 6, type) - chain; };
    return rank(left) < 6 && rank(right) < 6 && rank(right) > rank(left) ? right : left;
}

struct Model {
    std::string iniPath;
    int board = -1, storeResult = 1;

    struct Outcome {
        int result;
        std::string answer, error;
        bool operator==(const Outcome&) const = default;
        friend std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
            return out << outcome.result << " '" << outcome.answer << "' error '" << outcome.error << "'";
        }
    };
    struct Value {
        double number;
        int type;
    };
    struct Reply { // of a variable term
        int result;
        std::string text;
        std::optional<Value> slot = {};
        std::string error = {};
    };
    struct Term {
        std::string name = "???", value;
        bool isWrite = false;
        char option = ' ';
        int indices = 0;
        std::int32_t index[2] = {0, 0};
    };

    static const Block* blockOf(int id) { // none for commands; of int and long, long
        const auto holds = [=](const Block& block) { return block.holds(id) && block.type != 2008; };
        const auto* const block = std::ranges::find_if(kBlocks, holds);
        return block == std::end(kBlocks) ? nullptr : block;
    }
    static std::string bytesOf(const stParamProperties& row, int id) {
        return bytes(raw(row.is_volatile != 0) + blockOf(id)->slotOf(id), blockOf(id)->size);
    }
    static double numberOf(const stParamProperties& row, int id) {
        return blockOf(id) == nullptr ? 0 : blockOf(id)->number(bytesOf(row, id).data());
    }
    static std::string textOf(const stParamProperties& row, int id) {
        const std::tm clock = *std::localtime(&machine.now);
        if (row.type == 2015)
            return formatted("%04d-%02d-%02d", clock.tm_year + 1900, clock.tm_mon + 1, clock.tm_mday);
        if (row.type == 2016) return formatted("%02d:%02d:%02d", clock.tm_hour, clock.tm_min, clock.tm_sec);
        const std::string slot = bytesOf(row, id);
        return {slot.data(), strnlen(slot.data(), slot.size() - 1)};
    }
    static void put(const stParamProperties& row, int id, void* value) {
        (row.is_volatile == 0 ? VarSetValue : VarSetGlobalValue)(id, static_cast<double*>(value));
    }

    // ---- Variable terms ----

    Reply command(const std::string& text, int uid, bool hasSlot) const {
        const auto refuse = [&](const std::string& why) {
            if (why == kRights) note("log 3 " + text + " " + why);
            return Reply{-1, "", {}, why};
        };
        Term term;
        const Words sides = text.size() > 127 ? Words{} : tokens(text, "=");
        const Words words = sides.empty() ? Words{} : tokens(sides[0], " \r\n");
        term.isWrite = sides.size() > 1;
        if (term.isWrite) term.value = withoutBlanks(sides[1]);
        if (!words.empty()) term.name = words[0];
        for (std::size_t k = 1; k < std::min<std::size_t>(words.size(), 3); ++k)
            if (words[k] == "-p" || words[k] == "-c" || words[k] == "-h") term.option = words[k][1];
        bool areNumbers = true;
        if (words.size() > 1 && words[1][0] != '-')
            for (const std::string& piece : tokens(words[1], ".")) {
                if (term.indices == 2) break;
                areNumbers = areNumbers && makeLong(piece);
                term.index[term.indices++] = makeLong(piece).value_or(0);
            }
        if (term.indices == 1) term.index[1] = term.index[0];

        if (!areNumbers) return refuse("<< INDEX MUST BE A NUMBER >>");
        const stParamProperties* const row = rowOf(term.name);
        if (term.isWrite) {
            if (uid <= 1 && lower(term.name) != "mw_req") return refuse(kRights);
            if (term.value.empty() || row == nullptr) return refuse(kSyntax);
            if (row->userlevel > 2) note("log 6 sec param: " + text);
            if (row->val_access == 1) return refuse("<< VARIABLE IS READ ONLY >>");
            if (uid < row->userlevel) return refuse(kRights);
        } else {
            if (uid < 1) return refuse(kRights);
            if (row == nullptr) return refuse(kSyntax);
            if (row->val_access == 2) return refuse("<< VARIABLE IS WRITE ONLY >>");
        }
        const int low = row->val_min_id, high = row->val_max_id;
        if (term.indices == 0 && low > 0 && high > 0) return refuse("<< INDEX REQUIRED >>");
        if (term.indices > 0 && low == 0 && high == 0) return refuse("<< NO INDEX ALLOWED >>");
        if (term.indices == 1 || (term.indices == 2 && term.isWrite)) {
            if (term.index[0] < low) return refuse("<< INDEX TOO LOW >>");
            if (term.index[0] > high) return refuse("<< INDEX TOO HIGH >>");
        } else if (term.indices == 2) {
            for (const int k : {0, 1}) {
                if (term.index[k] < low) return refuse(formatted("<< INDEX %d TOO LOW >>", k + 1));
                if (term.index[k] > high) return refuse(formatted("<< INDEX %d TOO HIGH >>", k + 1));
            }
            if (term.index[1] < term.index[0]) return refuse("<< INDEX 1 GREATER THAN INDEX 2 >>");
        }
        if (term.isWrite) return write(term, *row);
        if (term.indices > 0) return readElements(term, *row, hasSlot);
        if (row->type == 2022) return readRecord(term, *row);
        if (isText(row->type)) return {1, '"' + textOf(*row, row->id) + '"', Value{0, row->type}};
        if (!hasSlot) return refuse(kSyntax);
        return {1, "", Value{numberOf(*row, row->id), row->type}};
    }

    // Appends one value of a dump; false when the answer is full.
    static bool append(std::string& text, char option, const std::string& label, const std::string& shown,
                       const std::string& bytes, bool isFirst) {
        const std::string piece = option == 'p'   ? shown + "\n"
                                  : option == 'c' ? (isFirst ? "" : ";") + shown
                                  : option == 'h' ? hex(bytes)
                                                  : label + " = " + shown + "\n";
        if (text.size() + piece.size() > 2998) return false;
        text += piece;
        return true;
    }

    static Reply readElements(const Term& term, const stParamProperties& row, bool hasSlot) {
        Reply reply{1, term.index[1] - term.index[0] > 1 ? "ARRAY:\n" : ""};
        const char option = term.option == ' ' && term.indices == 1 ? 'p' : term.option;
        for (std::int32_t k = term.index[0]; k <= term.index[1] && reply.result == 1; ++k) {
            const int id = row.id + k - 1;
            const double number = isText(row.type) ? 0 : numberOf(row, id);
            const std::string shown =
                isText(row.type) ? '"' + textOf(row, id) + '"' : print(number, row.type);
            const std::string stored = isText(row.type) ? textOf(row, id) : bytesOf(row, id);
            if (hasSlot) reply.slot = Value{number, row.type};
            if (option == 'h' && row.type == 2012)
                reply.result = -1, reply.error = "type unknown";
            else if (!append(reply.text, option, formatted("TLX_%s %d", row.name, k), shown, stored, k == 1))
                reply.result = -1, reply.error = kFull;
        }
        return reply;
    }

    static Reply readRecord(const Term& term, const stParamProperties& row) {
        const int record = row.id - 30000;
        Reply reply{1, "STRUCT:\n"};
        const auto* member = ARR_StructMemberProperties + ARR_MemberOffset[record];
        for (int at = 0; at < ARR_StructSize[record]; at += member++->iMemberBitsize / 8) {
            const char* const place = rawRecords() + ARR_StructOffset[record] + at;
            const std::string type = member->szMemberType;
            if (type == "odd") return {-1, reply.text, {}, "type unknown"};
            const std::string shown = type == "float"    ? print(numberIn<float>(place), 2003)
                                      : type == "double" ? print(numberIn<double>(place), 2002)
                                      : member->iMemberBitsize == 16
                                          ? print(numberIn<std::int16_t>(place), 2008)
                                          : print(numberIn<std::int32_t>(place), 2004);
            const std::string label = formatted("TLX_%s.%s", row.name, member->aszMemberName);
            const std::string stored = bytes(place, static_cast<std::size_t>(member->iMemberBitsize / 8));
            if (!append(reply.text, term.option, label, shown, stored, at == 0))
                return {-1, reply.text, {}, kFull};
        }
        return reply;
    }

    static bool clockWith(const std::string& value, bool isDate, std::time_t& moment) {
        const Words words = tokens(value, isDate ? "-\"" : ":\"");
        std::tm clock = *std::localtime(&machine.now);
        int* const fields[] = {isDate ? &clock.tm_year : &clock.tm_hour,
                               isDate ? &clock.tm_mon : &clock.tm_min,
                               isDate ? &clock.tm_mday : &clock.tm_sec};
        for (std::size_t k = 0; k < 3; ++k) {
            if (k >= words.size() || !makeLong(words[k])) return false;
            const std::int64_t start = !isDate ? 0 : k == 0 ? 1900 : k == 1 ? 1 : 0;
            *fields[k] = static_cast<int>(std::max<std::int64_t>(*makeLong(words[k]) - start, INT32_MIN));
        }
        clock.tm_isdst = -1;
        moment = std::mktime(&clock);
        return true;
    }

    static Reply write(const Term& term, const stParamProperties& row) {
        const int id = row.id + (term.indices > 0 ? term.index[0] - 1 : 0);
        std::string value = term.value;
        if (!isText(row.type)) {
            auto number = makeDouble(value);
            if (!number || std::isnan(*number)) return {-1, "", {}, kSyntax};
            if (*number < row.val_min) return {-1, "", {}, "<< VALUE TOO LOW >>"};
            if (*number > row.val_max) return {-1, "", {}, "<< VALUE TOO HIGH >>"};
            return put(row, id, &*number), Reply{0, ""};
        }
        const bool isClock = row.type == 2015 || row.type == 2016;
        std::time_t moment;
        if (isClock && !clockWith(value, row.type == 2015, moment)) return {-1, "", {}, kSyntax};
        if (!isClock && value[0] == '"') value = value.size() < 2 ? "" : value.substr(1, value.size() - 2);
        put(row, id, value.data());
        if (isClock && moment == -1) return {-1, "", {}, kSyntax};
        if (isClock) {
            note(formatted("clock %lld", static_cast<long long>(moment)));
            note("$ hwclock --systohc --utc --noadjfile");
        } else if (row.type == 2019 && term.indices == 0) {
            note("VarSetSystemIPs");
        } else {
            return {0, ""};
        }
        return {0, "", Value{0, row.type}};
    }

    // ---- Other terms ----

    struct FileCommand {
        const char* word;
        int lowestUid;
        const char *function, *success, *failure;
    };
    static constexpr FileCommand kFileCommands[] = {
        {"load_ip", 2, "VarLoadIPConfig", "IPs successfully loaded", "error: can't load IPs"},
        {"load_sec", 3, "VarLoadSecParams", "sec parameter successfully loaded",
         "sec error: can't load parameter"},
        {"load", 2, "VarLoadParams", "parameter successfully loaded", "error: can't load parameter"},
        {"save_ip", 2, "VarSaveIPConfig", "IP config successfully saved", "error: can't save ip parameter"},
        {"save_sec", 3, "VarSaveSecParams", "sec parameter successfully saved",
         "error: can't save sec parameter"},
        {"save", 1, "VarSaveParams", "parameter successfully saved", "error: can't save parameter"},
        {"update", -99, "VarUpdateGlobalSpace", "parameter successfully update",
         "error: can't update parameter"}};

    std::string carryOut(const FileCommand& command, const std::string& term) const {
        const std::string word = command.word;
        const Words words = tokens(term, " ");
        const bool isNamed = (word == "load" || word == "load_ip") && words.size() > 1;
        const std::string path = isNamed ? iniPath + "/" + words[1] : "";
        if (path.size() <= 254) note(isNamed ? "VarLoadFile 0 " + path : command.function);
        const bool isGood = storeResult == 1 && path.size() <= 254;
        std::string text = std::string(isGood ? command.success : command.failure) + "\n";
        if (word.ends_with("_sec")) note("log 6  " + term + " " + text);
        return text;
    }

    // False when the process ends.
    bool runShell(const std::string& command, const std::string& terminator) const {
        static const Words forbidden[] = {{"talux-pondo"},
                                          {"fw_printenv", "fw_setenv", "talux-bcard31", "bck_appfs",
                                           "backup.tgz", "/sys/class/gpio/gpio105/value"}};
        for (const std::string& part : board < 0 ? Words{} : forbidden[board])
            if (command.find(part) != std::string::npos) {
                machine.errors += "KEPL: system '" + command + "' command, not allowed\n";
                return note("exit 255"), false;
            }
        note("| " + command);
        if (machine.pipesFail) machine.errors += "KEPL: system: " + std::string(std::strerror(EMFILE)) + "\n";
        note("out 1 > ");
        std::string rest = machine.pipesFail ? "" : *machine.pipe;
        std::erase(rest, '\0');
        while (!rest.empty()) {
            const std::size_t size = std::min<std::size_t>({rest.find('\n'), rest.size() - 1, 253}) + 1;
            note("out 1 " + rest.substr(0, size));
            rest.erase(0, size);
        }
        note("out 1 \n");
        note("out 0 " + terminator);
        if (!machine.pipesFail) note("closed");
        return true;
    }

    // An operator, a function or a number; an error, or empty when it has been carried out.
    static std::string compute(const std::string& term, std::vector<Value>& stack) {
        const std::string word = lower(term);
        const Words names = {"+", "-", "*", "/", "sin", "cos", "tan", "deg", "rad", "sqr", "sqrt"};
        const auto which = static_cast<std::size_t>(std::ranges::find(names, word) - names.begin());
        if (which == names.size()) {
            const auto number = makeDouble(term);
            if (number) stack.push_back({*number, 2002});
            return number ? "" : kSyntax;
        }
        if (stack.size() < (which < 4 ? 2 : 1)) return kSyntax;
        const auto [x, type] = stack.back();
        if (which == 3 && x == 0) return "Division durch 0";
        if (which == 10 && x < 0) return "Quadratwurzel von negativen Werten nicht erlaubt";
        if (which < 4) stack.pop_back();
        Value& top = stack.back();
        const double pi = 3.141592653589793, left = top.number;
        const double results[] = {left + x,       left - x,    left * x,    left / x,
                                  std::sin(x),    std::cos(x), std::tan(x), x / pi * 180.0,
                                  x / 180.0 * pi, x * x,       std::sqrt(x)};
        top = {results[which], which < 4 ? resultType(top.type, type) : 2002};
        return "";
    }

    Outcome evaluate(const std::string& line, const std::string& terminator, int uid) const {
        std::string answer = kUntouched, text;
        if (line.empty()) return {0, answer, ""};
        if (line.size() > 254) return {-1, answer, kSyntax};
        std::vector<Value> stack;
        int output = 2;
        for (std::string term : tokens(line, ",")) {
            term = withoutBlanks(term.substr(0, 127));
            const auto begins = [&](const std::string& word) { return lower(term).starts_with(word); };
            const auto has = [&](const char* part) { return term.find(part) != std::string::npos; };
            const auto lacksRights = [&] {
                note(("log 3 " + term).append(" ").append(kRights));
                return Outcome{1, kRights + terminator, ""};
            };
            const auto* const command =
                std::ranges::find_if(kFileCommands, [&](const FileCommand& row) { return begins(row.word); });
            if (begins("system")) {
                if (uid < 3 && !(has("cat") && has(".version"))) return lacksRights();
                note("log 6 sec param: " + term);
                const Words words = tokens(term, " ");
                text = words.size() < 2 ? "command required\n" : "";
                output = words.size() < 2 ? 1 : 3;
                if (output == 3 && !runShell(withoutBlanks(term.substr(words[0].size())), terminator))
                    return {kProcessEnds, answer, ""};
            } else if (command != std::end(kFileCommands)) {
                if (uid < command->lowestUid) return lacksRights();
                text = carryOut(*command, term);
                output = 1;
            } else if (begins("lvr_") || begins("tlx_")) {
                const Reply reply = this->command(term.substr(4), uid, true);
                if (reply.result < 0) return {-1, reply.error + terminator, reply.error};
                const bool isNumber = reply.text.empty() && reply.slot && !isText(reply.slot->type);
                if (reply.result == 1 && isNumber) stack.push_back(*reply.slot);
                output = reply.result == 0 ? 0 : isNumber ? 2 : 1;
                if (output == 1) answer = text = reply.text;
            } else if (const std::string error = compute(term, stack); !error.empty()) {
                return {-1, answer, error};
            }
        }
        if (output == 2 && stack.empty()) return {-1, answer, kSyntax};
        if (output == 2) text = print(stack.back().number, stack.back().type);
        return {1, output == 0 ? terminator : output == 3 ? "" : text + terminator, ""};
    }
};

} // namespace talux_test

#endif
