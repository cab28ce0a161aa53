// The one place that changes the settings of a device for the commands of talux: shows, asks, writes in the
// right order, reads back, and puts the old values back when a write does not arrive.
#ifndef TALUX_TOOLS_TALUX_CHANGE_APPLY_H
#define TALUX_TOOLS_TALUX_CHANGE_APPLY_H

#include "ParamSystem/TALUX_Var.h"
#include "tools/talux/change/Journal.h"

namespace talux::tool {

// Applies all network settings to the system.
void applyAddresses(const Journal& journal);

// What the commands that change settings take, and what they add to it.
struct Order {
    std::vector<std::string> assignments; // NAME=VALUE
    std::string operand;                  // a file, a moment, a source
    bool live = false, save = false, yes = false, dryRun = false, json = false;
    std::string protocol; // a file for the record; empty: none

    std::string what; // the command, for the record and the system log
    std::function<void(const Journal&)> apply = applyAddresses; // none: leaves the system alone
    bool appliesAll = false;                                    // netmasks and gateways, too
    std::function<bool()> isConfirmed{}; // asked afterwards; none: nobody has to confirm it
    std::set<File> files{};              // to save, besides those of what is written
    bool mends = false;                  // a change that was interrupted

    Reach reach() const {
        return appliesAll ? Reach::applied : save ? Reach::saved : live ? Reach::live : Reach::pending;
    }
};
using ChangeCommand = Status (*)(Order&, const Context&);

constexpr Wording kYesHelp{"write without asking", "ohne Rückfrage schreiben"};

// Adds a command that changes settings, with the options of all of them. It runs with the device attached.
Added<Order> addChange(CommandLine& line, const char* name, ChangeCommand change, Wording help);

void attachToWrite(const Context& context);

// All of the plan or nothing. What CouldNot says includes what is there if the old values did not come back.
Status carryOut(const Plan& plan, Order& order, const Context& context);

// The same of values that were on the device before: without the checks of a plan.
Status carryOut(const Writes& writes, const Order& order, const Context& context);

// The last change is taken back; pending settings become what is live.
Status undo(Order& order, const Context& context);
Status discard(Order& order, const Context& context);

// Puts the addresses back that wait to be confirmed: into working copy, live values and file, and `applies`
// them to the system. False when none waits.
bool takeAddressBack(bool applies, const Context& context);

void save(const std::set<File>& files, const Context& context);

Json changesJson(const Writes& writes);

// Asks on the terminal; true if the answer is yes. Throws CouldNot where there is none to ask at.
bool isAgreed(const std::string& question, const Context& context);

// Settings of the working copy that are not live.
std::size_t pendingSettings(const Context& context);

// One change at a time: until what it gives goes out of scope. Throws CouldNot while another process has it.
[[nodiscard]] std::shared_ptr<void> oneAtATime(const Context& context);

} // namespace talux::tool

#endif
