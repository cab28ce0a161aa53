// A literal model of the command language: a line goes in; answer, error, events and both spaces come out.
#ifndef TALUX_TEST_KEPLMODEL_H
#define TALUX_TEST_KEPLMODEL_H

#include <algorithm>
#include <cmath>
#include <cstdarg>
#include <cstring>
#include <ctime>
#include <optional>
#include <string>
#include <vector>

#include "Store.h"

namespace talux_test {

using Words = std::vector<std::string>;
constexpr int kProcessEnds = -99; // stands for the result of a line
inline const std::string kSyntax = "<< SYNTAX ERROR >>", kRights = "<< RIGHTS TOO LOW >>",
                         kFull = "<< OUTPUT BUFFER EXCEEDED >>";

inline std::string format(const char* text, ...) {
    char buffer[500];
    std::va_list arguments;
    va_start(arguments, text);
    std::vsnprintf(buffer, sizeof buffer, text, arguments);
    va_end(arguments);
    return buffer;
}

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

// The first word of a text as a number.
template <typename Convert>
auto parse(const std::string& text, Convert convert) {
    const Words words = tokens(text.substr(0, 50), " ");
    char* end = nullptr;
    const auto value = convert(words.empty() ? "" : words[0].c_str(), &end);
    return text.size() < 50 && !words.empty() && *end == '\0' ? std::optional(value) : std::nullopt;
}
inline std::optional<double> makeDouble(const std::string& text) {
    return parse(text, [](const char* word, char** end) { return std::strtod(word, end); });
}
inline std::optional<std::int32_t> makeLong(const std::string& text) {
    return parse(text, [](const char* word, char** end) {
        const long long number = std::strtoll(word, end, 10);
        return static_cast<std::int32_t>(std::clamp<long long>(number, INT32_MIN, INT32_MAX));
    });
}

inline std::string print(double number, int type) {
    return std::isnan(number) ? "nan" : format(type >= 2004 && type <= 2010 ? "%.0f" : "%f", number);
}

inline std::string hex(const std::string& bytes) {
    std::string text;
    for (const char c : bytes)
        text += format("%02X", static_cast<unsigned char>(c));
    return text;
}

inline int resultType(int left, int right) {
    const int chain[] = {2010, 2009, 2008, 2004, 2003, 2002}; // from the lowest
    const auto rank = [&](int type) { return std::find(chain, chain + 6, type) - chain; };
    return rank(left) < 6 && rank(right) < 6 && rank(right) > rank(left) ? right : left;
}

struct Model {
    std::string spaces[2], records;
    Words events;
    std::string iniPath, pipe, errors;
    std::time_t now = 0;
    int board = -1, storeResult = 1;
    bool pipesFail = false;

    struct Outcome {
        int result;
        std::string answer, error;
        bool operator==(const Outcome&) const = default;
        friend std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
            return out << outcome.result << " '" << outcome.answer << "' error '" << outcome.error << "'";
        }
    };
    // Of a variable term: its text, what it leaves on the stack, its error.
    struct Reply {
        int result;
        std::string text;
        std::optional<std::pair<double, int>> slot = {};
        std::string error = {};
    };

    std::string stamp() const { return format(" @%zx", std::hash<std::string>()(spaces[0] + spaces[1])); }
    void note(const std::string& event) { events.push_back(event + stamp()); }

    // ---- Values ----

    static const Block* blockOf(int id) {
        const Block* found = nullptr;
        for (const Block& block : kBlocks) // of int and long, long
            if (block.holds(id) && (found == nullptr || block.type == 2004)) found = &block;
        return found;
    }
    char* slotOf(const Block& block, const stParamProperties& row, int id) {
        return &spaces[row.is_volatile != 0][block.slotOf(id)];
    }
    double numberOf(const stParamProperties& row, int id) {
        const Block* const block = blockOf(id);
        return block == nullptr ? 0 : block->number(slotOf(*block, row, id));
    }
    std::string textOf(const stParamProperties& row, int id) {
        const std::tm clock = *std::localtime(&now);
        if (row.type == 2015)
            return format("%04d-%02d-%02d", clock.tm_year + 1900, clock.tm_mon + 1, clock.tm_mday);
        if (row.type == 2016) return format("%02d:%02d:%02d", clock.tm_hour, clock.tm_min, clock.tm_sec);
        return blockOf(id)->textIn(slotOf(*blockOf(id), row, id));
    }
    void put(const stParamProperties& row, int id, double number) {
        const auto whole = static_cast<std::int32_t>(std::clamp(number, -2147483648.0, 2147483647.0));
        const auto positive = static_cast<std::uint32_t>(std::clamp(number, 0.0, 4294967295.0));
        const auto narrow = static_cast<float>(number);
        for (const Block& block : kBlocks)
            if (block.holds(id) && block.number != nullptr)
                std::memcpy(slotOf(block, row, id),
                            block.type == 2002   ? static_cast<const void*>(&number)
                            : block.type == 2003 ? static_cast<const void*>(&narrow)
                            : block.type == 2010 ? static_cast<const void*>(&positive)
                                                 : &whole,
                            block.size);
    }

    // ---- Variable terms ----

    struct Term {
        std::string name = "???", value;
        bool isWrite = false;
        char option = ' ';
        int indices = 0;
        std::int32_t index[2] = {0, 0};
    };

    Reply command(const std::string& text, int uid, bool hasSlot) {
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
        const stParamProperties* const row = GetParamPropertiesByName(term.name.data());
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
                if (term.index[k] < low) return refuse(format("<< INDEX %d TOO LOW >>", k + 1));
                if (term.index[k] > high) return refuse(format("<< INDEX %d TOO HIGH >>", k + 1));
            }
            if (term.index[1] < term.index[0]) return refuse("<< INDEX 1 GREATER THAN INDEX 2 >>");
        }
        if (term.isWrite) return write(term, *row);
        if (term.indices > 0) return readElements(term, *row, hasSlot);
        if (row->type == 2022) return readRecord(term, *row);
        if (isText(row->type)) return {1, '"' + textOf(*row, row->id) + '"', {{0.0, row->type}}};
        if (!hasSlot) return refuse(kSyntax);
        return {1, "", {{numberOf(*row, row->id), row->type}}};
    }

    static bool isText(int type) { return type == 2011 || (type >= 2013 && type <= 2021); }

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

    Reply readElements(const Term& term, const stParamProperties& row, bool hasSlot) {
        std::string text = term.index[1] - term.index[0] > 1 ? "ARRAY:\n" : "";
        const char option = term.option == ' ' && term.indices == 1 ? 'p' : term.option;
        Reply reply{1, ""};
        for (std::int32_t k = term.index[0]; k <= term.index[1]; ++k) {
            const int id = row.id + k - 1;
            const bool isNumber = !isText(row.type);
            const double number = isNumber ? numberOf(row, id) : 0;
            if (hasSlot) reply.slot = {number, row.type};
            if (option == 'h' && row.type == 2012) return {-1, text, reply.slot, "type unknown"};
            if (!append(text, option, format("TLX_%s %d", row.name, k),
                        isNumber ? print(number, row.type) : '"' + textOf(row, id) + '"',
                        isNumber ? std::string(slotOf(*blockOf(id), row, id), blockOf(id)->size)
                                 : textOf(row, id),
                        k == 1))
                return {-1, text, reply.slot, kFull};
        }
        reply.text = text;
        return reply;
    }

    Reply readRecord(const Term& term, const stParamProperties& row) {
        const int record = row.id - 30000;
        const auto size = static_cast<std::size_t>(ARR_StructSize[record]);
        const char* const bytes = records.data() + ARR_StructOffset[record];
        std::string text = "STRUCT:\n";
        const auto* member = ARR_StructMemberProperties + ARR_MemberOffset[record];
        for (std::size_t at = 0; at < size; at += static_cast<std::size_t>(member++->iMemberBitsize) / 8) {
            const std::string type = member->szMemberType;
            const std::string raw(bytes + at, static_cast<std::size_t>(member->iMemberBitsize / 8));
            if (type == "odd") return {-1, text, {}, "type unknown"};
            const std::string shown = type == "float"    ? print(numberIn<float>(raw.data()), 2003)
                                      : type == "double" ? print(numberIn<double>(raw.data()), 2002)
                                      : raw.size() == 2  ? print(numberIn<std::int16_t>(raw.data()), 2008)
                                                         : print(numberIn<std::int32_t>(raw.data()), 2004);
            const std::string label = format("TLX_%s.%s", row.name, member->aszMemberName);
            if (!append(text, term.option, label, shown, raw, at == 0)) return {-1, text, {}, kFull};
        }
        return {1, text};
    }

    bool clockWith(const std::string& value, bool isDate, std::time_t& moment) const {
        const Words words = tokens(value, isDate ? "-\"" : ":\"");
        std::tm clock = *std::localtime(&now);
        int* const fields[] = {isDate ? &clock.tm_year : &clock.tm_hour,
                               isDate ? &clock.tm_mon : &clock.tm_min,
                               isDate ? &clock.tm_mday : &clock.tm_sec};
        for (std::size_t k = 0; k < 3; ++k) {
            if (k >= words.size() || !makeLong(words[k])) return false;
            const std::int64_t start = !isDate ? 0 : k == 0 ? 1900 : k == 1 ? 1 : 0;
            *fields[k] = static_cast<int>(std::max<std::int64_t>(*makeLong(words[k]) - start, INT32_MIN));
        }
        clock.tm_isdst = -1;
        return (moment = std::mktime(&clock)) != -1;
    }

    Reply write(const Term& term, const stParamProperties& row) {
        const int id = row.id + (term.indices > 0 ? term.index[0] - 1 : 0);
        std::string value = term.value;
        if (row.type == 2015 || row.type == 2016) {
            std::time_t moment;
            if (!clockWith(value, row.type == 2015, moment)) return {-1, "", {}, kSyntax};
            blockOf(id)->putText(slotOf(*blockOf(id), row, id), value.c_str());
            note(format("clock %lld", static_cast<long long>(moment)));
            note("$ hwclock --systohc --utc --noadjfile");
            return {0, "", {{0.0, row.type}}};
        }
        if (!isText(row.type)) {
            const auto number = makeDouble(value);
            if (!number || std::isnan(*number)) return {-1, "", {}, kSyntax};
            if (*number < row.val_min) return {-1, "", {}, "<< VALUE TOO LOW >>"};
            if (*number > row.val_max) return {-1, "", {}, "<< VALUE TOO HIGH >>"};
            put(row, id, *number);
            return {0, ""};
        }
        if (value[0] == '"') value = value.size() < 2 ? "" : value.substr(1, value.size() - 2);
        blockOf(id)->putText(slotOf(*blockOf(id), row, id), value.c_str());
        if (row.type != 2019 || term.indices > 0) return {0, ""};
        note("VarSetSystemIPs");
        return {0, "", {{0.0, 2019}}};
    }

    // ---- Other terms ----

    struct FileCommand {
        std::string word;
        int lowestUid;
        std::string function, success, failure;
    };
    static const FileCommand* fileCommand(const std::string& term) {
        static const FileCommand rows[] = {
            {"load_ip", 2, "VarLoadIPConfig", "IPs successfully loaded\n", "error: can't load IPs\n"},
            {"load_sec", 3, "VarLoadSecParams", "sec parameter successfully loaded\n",
             "sec error: can't load parameter\n"},
            {"load", 2, "VarLoadParams", "parameter successfully loaded\n", "error: can't load parameter\n"},
            {"save_ip", 2, "VarSaveIPConfig", "IP config successfully saved\n",
             "error: can't save ip parameter\n"},
            {"save_sec", 3, "VarSaveSecParams", "sec parameter successfully saved\n",
             "error: can't save sec parameter\n"},
            {"save", 1, "VarSaveParams", "parameter successfully saved\n", "error: can't save parameter\n"},
            {"update", -99, "VarUpdateGlobalSpace", "parameter successfully update\n",
             "error: can't update parameter\n"}};
        const auto begins = [&](const FileCommand& row) { return lower(term).starts_with(row.word); };
        const auto* const row = std::ranges::find_if(rows, begins);
        return row == std::end(rows) ? nullptr : row;
    }
    std::string carryOut(const FileCommand& command, const std::string& term) {
        const Words words = tokens(term, " ");
        const bool isNamed = (command.word == "load" || command.word == "load_ip") && words.size() > 1;
        const std::string path = isNamed ? iniPath + "/" + words[1] : "";
        if (path.size() <= 254) note(isNamed ? "VarLoadFile 0 " + path : command.function);
        const std::string text = storeResult == 1 && path.size() <= 254 ? command.success : command.failure;
        if (command.word.ends_with("_sec")) note("log 6  " + term + " " + text);
        return text;
    }

    // False when the process ends.
    bool runShell(const std::string& command, const std::string& terminator) {
        static const Words forbidden[] = {{"talux-pondo"},
                                          {"fw_printenv", "fw_setenv", "talux-bcard31", "bck_appfs",
                                           "backup.tgz", "/sys/class/gpio/gpio105/value"}};
        for (const std::string& part : board < 0 ? Words{} : forbidden[board])
            if (command.find(part) != std::string::npos) {
                errors += "KEPL: system '" + command + "' command, not allowed\n";
                return note("exit 255"), false;
            }
        note("| " + command);
        if (pipesFail) errors += "KEPL: system: " + std::string(std::strerror(EMFILE)) + "\n";
        note("out 1 > ");
        std::string rest = pipesFail ? "" : pipe;
        std::erase(rest, '\0');
        while (!rest.empty()) {
            const std::size_t size = std::min<std::size_t>({rest.find('\n'), rest.size() - 1, 253}) + 1;
            note("out 1 " + rest.substr(0, size));
            rest.erase(0, size);
        }
        note("out 1 \n");
        note("out 0 " + terminator);
        if (!pipesFail) note("closed");
        return true;
    }

    struct Stack {
        std::vector<std::pair<double, int>> values;

        std::pair<double, int> pop() {
            const auto top = values.back();
            values.pop_back();
            return top;
        }
        // An error, or empty when the term has been carried out.
        std::string take(const std::string& term) {
            const std::string word = lower(term);
            const Words binary = {"+", "-", "*", "/"},
                        unary = {"sin", "cos", "tan", "deg", "rad", "sqr", "sqrt"};
            const auto operation = static_cast<std::size_t>(std::ranges::find(binary, word) - binary.begin());
            const auto function = static_cast<std::size_t>(std::ranges::find(unary, word) - unary.begin());
            if (operation < 4) {
                if (values.size() < 2) return kSyntax;
                const auto [r, rightType] = pop();
                const auto [l, leftType] = pop();
                if (operation == 3 && r == 0) return "Division durch 0";
                const double results[] = {l + r, l - r, l * r, l / r};
                values.emplace_back(results[operation], resultType(leftType, rightType));
            } else if (function < 7) {
                if (values.empty()) return kSyntax;
                const double x = pop().first, pi = 3.141592653589793;
                if (function == 6 && x < 0) return "Quadratwurzel von negativen Werten nicht erlaubt";
                const double results[] = {std::sin(x),    std::cos(x), std::tan(x), x / pi * 180.0,
                                          x / 180.0 * pi, x * x,       std::sqrt(x)};
                values.emplace_back(results[function], 2002);
            } else {
                const auto number = makeDouble(term);
                if (!number) return kSyntax;
                values.emplace_back(*number, 2002);
            }
            return "";
        }
    };

    Outcome evaluate(const std::string& line, const std::string& terminator, int uid) {
        std::string answer = "(untouched)", text;
        if (line.empty()) return {0, answer, ""};
        if (line.size() > 254) return {-1, answer, kSyntax};
        Stack stack;
        int output = 2;
        for (std::string term : tokens(line, ",")) {
            term = withoutBlanks(term.substr(0, 127));
            const auto lacksRights = [&] {
                note("log 3 " + term + " " + kRights);
                return Outcome{1, kRights + terminator, ""};
            };
            const auto has = [&](const char* part) { return term.find(part) != std::string::npos; };
            if (lower(term).starts_with("system")) {
                if (uid < 3 && !(has("cat") && has(".version"))) return lacksRights();
                note("log 6 sec param: " + term);
                const Words words = tokens(term, " ");
                text = words.size() < 2 ? "command required\n" : "";
                output = words.size() < 2 ? 1 : 3;
                if (output == 3 && !runShell(withoutBlanks(term.substr(words[0].size())), terminator))
                    return {kProcessEnds, answer, ""};
            } else if (const FileCommand* const command = fileCommand(term)) {
                if (uid < command->lowestUid) return lacksRights();
                text = carryOut(*command, term);
                output = 1;
            } else if (lower(term).starts_with("lvr_") || lower(term).starts_with("tlx_")) {
                const Reply reply = this->command(term.substr(4), uid, true);
                if (reply.result < 0) return {-1, reply.error + terminator, reply.error};
                const bool isNumber = reply.text.empty() && reply.slot && !isText(reply.slot->second);
                if (reply.result == 1 && isNumber) stack.values.push_back(*reply.slot);
                output = reply.result == 0 ? 0 : isNumber ? 2 : 1;
                if (output == 1) answer = text = reply.text;
            } else if (const std::string error = stack.take(term); !error.empty()) {
                return {-1, answer, error};
            }
        }
        if (output == 2 && stack.values.empty()) return {-1, answer, kSyntax};
        if (output == 2) text = print(stack.values.back().first, stack.values.back().second);
        return {1, output == 0 ? terminator : output == 3 ? "" : text + terminator, ""};
    }
};

} // namespace talux_test

#endif
