// What is to be said about a line of a parameter file before it is loaded: what a load does with it, and what
// it does without a message. The library's own reader takes the lines apart and decides about each.
#ifndef TALUX_TOOLS_TALUX_JUDGEMENT_H
#define TALUX_TOOLS_TALUX_JUDGEMENT_H

#include "ParamSystem/files/Effect.h"
#include "tools/talux/Source.h"

namespace talux::tool {

struct Finding {
    const char* code; // for programs; never changes
    std::string text;
};

// What a line changes: the parameter of a known name, the value before the line is loaded and afterwards,
// none when nothing is stored.
struct Judgement : Difference {
    int line = 0;
    std::string name; // as the line has it where it is unknown; empty without one
    std::vector<Finding> findings;
    bool isOmitted = false; // one of too many lines that are no parameter's: nothing else is filled in

    bool changes() const { return to && isDifference(*this); }
    // The clock's own lines are kept by a load and mean nothing.
    bool isChange() const { return changes() && !isOfClock(*parameter); }
};

// Judges the lines of one file, one after the other.
class Judge {
public:
    // `before`: what the values are before the file is loaded.
    Judge(const std::string& path, const Source& before, const Context& context);

    Judgement judge(const Entry& entry);

private:
    const Source& before;
    const Context& context;
    std::optional<File> expected;              // the file that the path is named after
    bool hasMark;                              // a byte order mark before the first line
    int strangers = 0;                         // lines so far that are no parameter's
    std::map<int, std::pair<Value, int>> seen; // by id, with the line
    Judgement judgement;                       // of the present line

    template <class... Pieces>
    void say(const char* code, PatternFor<Pieces...> english, PatternFor<Pieces...> german,
             const Pieces&... pieces) {
        judgement.findings.push_back({code, context.say(english, german, pieces...)});
    }
    void judgeLine(const Entry& entry);
    void judgeSkipped(const Entry& entry, Outcome outcome);
    void judgeStored(const Entry& entry, const Value& value);
    void judgeNumber(const Entry& entry, double given);
    void judgeText(const Entry& entry);
    void judgeFile();
    template <class Given>
    void addObjections(const Given& given);
};

// What a save would write for a value and a load would make of that: nothing when it is the value again.
std::optional<Finding> wouldNotComeBack(const Parameter& parameter, const Value& value,
                                        const Context& context);

} // namespace talux::tool

#endif
