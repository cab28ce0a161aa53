// The record of a change: what it wrote and what was there, who made it and when. The last one of a device
// lies in the folder of its parameter files, written before the first value and marked when all are there;
// from an unmarked one the next command knows what is half. Records are text: lines that begin with "#", then
// NAME, old value, new value and the change in words between tabs.
#ifndef TALUX_TOOLS_TALUX_CHANGE_JOURNAL_H
#define TALUX_TOOLS_TALUX_CHANGE_JOURNAL_H

#include "tools/talux/change/Plan.h"

namespace talux::tool {

// How far a change goes: pending in the working copy, live, in the files, too, or applied to the system.
enum class Reach { pending, live, saved, applied };

struct Journal {
    bool isDone = false;
    std::string what; // the command
    std::string when; // local time
    std::string who;
    Reach reach = Reach::pending;
    Writes writes;

    // None when there is no such file. Throws CouldNot when it is no record.
    static std::optional<Journal> read(const std::string& path, const Context& context);

    std::string text(const Context& context) const;
    std::string inWords(const Context& context) const; // "ETH0_IP "10.0.0.1" -> "10.0.0.2", .."

    // Of an unfinished one: what is not as it was before. As long as the texts of a process that was killed
    // can be in pieces, that is all it can have written.
    Writes written() const;
};

// Of the last change of the device; of an address that waits to be confirmed.
inline std::string lastChange(const Context& context) {
    return context.directory + "/last_change.tsv";
}
inline std::string openAddress(const Context& context) {
    return context.directory + "/address_change.tsv";
}

// What a change that has not come to its end left half or open, and how to end it; empty when nothing is.
std::string interruption(const Context& context);

// What is wrong with a record; empty when nothing is. That of the last change blocks nothing.
std::string damageOf(const std::string& path, const Context& context);
std::string lastChangeDamage(const Context& context);

// What precedes "=": values may be passwords, which no log shows.
std::string namesIn(const std::vector<std::string>& assignments);

// The user and, over the network, from where.
std::string whoAmI();

} // namespace talux::tool

#endif
