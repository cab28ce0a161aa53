// Where values come from: the live values of a device, its working copy, the factory defaults, a parameter
// file or a folder with the three of them.
#ifndef TALUX_TOOLS_TALUX_SOURCE_H
#define TALUX_TOOLS_TALUX_SOURCE_H

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "ParamSystem/files/Reader.h"
#include "ParamSystem/store/Spaces.h"
#include "ParamSystem/store/Values.h"
#include "tools/reference/Lookup.h"
#include "tools/talux/Command.h"

namespace talux::tool {

using reference::File, reference::Parameter, reference::Parameters;

constexpr File kFiles[] = {File::normal, File::security, File::address};

class Source {
public:
    enum class Origin { defaults, live, staged, file };

    // By name: "default", "live", "staged", else a path. Live and staged attach the device's segments,
    // read-only and creating none. Throws CouldNot when there is no device or no such file.
    static Source open(const std::string& name, const Context& context);

    static Source defaults() { return Source(Origin::defaults, "default"); }

    // A single file; throws CouldNot also when it is a folder.
    static Source file(const std::string& path, const Context& context);

    // A file that is not there.
    static Source nothing(const std::string& path) { return Source(Origin::file, path); }

    // What people call it: "the working copy".
    std::string called(const Context& context) const;

    Origin origin() const { return origin_; }
    const std::string& name() const { return name_; }

    // The value of an id. Run-time values are those of the device, whether live or staged. Of a file what a
    // load would keep of it.
    std::optional<Value> value(int id) const;
    std::optional<Value> value(const Parameter& parameter) const { return value(parameter.row().id); }
    std::optional<Value> operator()(const Parameter& parameter) const { return value(parameter); }

    // A file need not hold every setting; all others do.
    bool isPartial() const { return origin_ == Origin::file; }

private:
    Source(Origin origin, std::string name) : origin_(origin), name_(std::move(name)) {}

    void readFile(const std::string& path, const Context& context);

    Origin origin_;
    std::string name_;
    std::map<int, Value> held; // of a file
};

// Attaches what other programs have made; throws CouldNot when there is nothing.
void attachDevice(Access access, const Context& context);

// Whether the device's segments are there; looks without attaching.
bool isDeviceThere();

// The parameter files of a folder that are there. Throws CouldNot when there is none.
std::vector<std::string> filesIn(const std::string& folder, const Context& context);

bool isFolder(const std::string& path);

// Path of one of the parameter files in the folder of the device.
std::string pathOf(File file, const Context& context);

// Calls visit(entry) for every line of a parameter file. Throws CouldNot with the reason.
void readEntries(const std::string& path, const Context& context,
                 const std::function<void(const Entry&)>& visit);

// The two that show the clock: kept in files, never part of a comparison.
bool isOfClock(const Parameter& parameter);

// All settings but those two, in menu order.
const reference::ParameterRefs& settings();

// Belongs to the single device: its name, addresses, station numbers and calibration.
inline bool isIndividual(const Parameter& parameter) {
    return parameter.model().has(parameters::kIndividual);
}

// Where a program that writes finds a value: a setting's in the working copy, any other's where the device
// has it.
inline Space spaceOf(const stParamProperties& row) {
    return row.is_volatile == 1 ? Space::global : Space::temp;
}

bool sameValue(const std::optional<Value>& a, const std::optional<Value>& b);

struct Difference {
    const Parameter* parameter = nullptr;
    std::optional<Value> from, to;
};

// The settings in which two sources differ: those for which isDifference(difference) is true.
bool isDifference(const Difference& difference);
std::vector<Difference> differences(const Source& a, const Source& b,
                                    const std::function<bool(const Difference&)>& isMeant = isDifference);

// The value as a parameter file holds it, without name and line end; the canonical form of a value.
std::string fileForm(const Parameter& parameter, const Value& value);

} // namespace talux::tool

#endif
