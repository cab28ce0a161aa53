#include "tools/talux/Source.h"

#include <cerrno>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <sys/shm.h>

#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/files/Effect.h"
#include "ParamSystem/files/Line.h"
#include "tools/talux/Files.h"
#include "tools/talux/Text.h"

namespace talux::tool {

bool isFolder(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

void readEntries(const std::string& path, const Context& context,
                 const std::function<void(const Entry&)>& visit) {
    const os::Error error = readLines(path.c_str(), [&visit](const Entry& entry) { visit(entry); });
    if (error && error.stage == os::Stage::open)
        context.fail("{}: cannot be opened: {}", "{}: lässt sich nicht öffnen: {}", path,
                     reasonOf(error.number));
    if (error)
        context.fail("{}: cannot be read: {}", "{}: lässt sich nicht lesen: {}", path,
                     reasonOf(error.number));
}

Source Source::open(const std::string& name, const Context& context) {
    if (name == "default") return defaults();
    if (name == "live" || name == "staged") {
        attachDevice(Access::readOnly, context);
        return Source(name == "live" ? Origin::live : Origin::staged, name);
    }
    Source source(Origin::file, name);
    for (const std::string& path : isFolder(name) ? filesIn(name, context) : std::vector{name})
        source.readFile(path, context);
    return source;
}

Source Source::file(const std::string& path, const Context& context) {
    Source source = nothing(path);
    source.readFile(path, context);
    return source;
}

std::vector<std::string> filesIn(const std::string& folder, const Context& context) {
    std::vector<std::string> found;
    for (const File file : kFiles)
        if (std::string path = joined({folder, "/", reference::fileName(file)}); os::exists(path.c_str()))
            found.push_back(std::move(path));
    if (found.empty())
        context.fail("{}: none of parameter.ini, sec_parameter.ini, ip_config.ini is there",
                     "{}: weder parameter.ini noch sec_parameter.ini noch ip_config.ini ist da", folder);
    return found;
}

std::string Source::called(const Context& context) const {
    return origin_ == Origin::defaults ? context.say("the factory settings", "der Werkseinstellung")
           : origin_ == Origin::live   ? context.say("the live settings", "den gültigen Einstellungen")
           : origin_ == Origin::staged ? context.say("the working copy", "der Arbeitskopie")
                                       : printable(name_);
}

void Source::readFile(const std::string& path, const Context& context) {
    readEntries(path, context, [this](const Entry& entry) {
        const Effect effect = effectOf(entry);
        if (effect.outcome != Outcome::stored) return;
        if (const auto kept = storedAs(effect.row->id, *effect.value))
            held.insert_or_assign(effect.row->id, *kept);
    });
}

std::optional<Value> Source::value(int id) const {
    const stParamProperties* const row = GetParamProperties(id);
    if (row == nullptr) return {};
    if (origin_ == Origin::file) {
        const auto found = held.find(id);
        return found == held.end() ? std::nullopt : std::optional(found->second);
    }
    if (origin_ == Origin::defaults) return row->is_volatile == 1 ? std::nullopt : defaultOf(*row);
    return readValue(origin_ == Origin::live ? Space::global : spaceOf(*row), id);
}

void attachDevice(Access access, const Context& context) {
    const char* const missing = attachExisting(access);
    if (missing == nullptr) return;
    const int error = errno;
    context.fail("no device here: the {} cannot be attached: {}; on a device `talux boot` makes "
                 "it, on a desk scripts/run.sh -- talux ..",
                 "hier ist kein Gerät: {} nicht erreichbar: {}; auf einem Gerät legt ihn "
                 "`talux boot` an, am Schreibtisch scripts/run.sh -- talux ..",
                 missing, reasonOf(error));
}

bool isDeviceThere() {
    return shmget(kGlobalSpaceKey, 0, 0) >= 0;
}

std::string pathOf(File file, const Context& context) {
    return context.directory + "/" + std::string(reference::fileName(file));
}

bool isOfClock(const Parameter& parameter) {
    const Nature nature = parameter.type().nature;
    return nature == Nature::date || nature == Nature::time;
}

const reference::ParameterRefs& settings() {
    static const auto all = reference::parametersWhere(
        [](const Parameter& parameter) { return parameter.isSetting() && !isOfClock(parameter); });
    return all;
}

bool sameValue(const std::optional<Value>& a, const std::optional<Value>& b) {
    if (!a || !b) return !a && !b;
    if (a->isText() != b->isText()) return false;
    if (a->isText()) return std::strcmp(a->text(), b->text()) == 0;
    return a->number() == b->number() || (std::isnan(a->number()) && std::isnan(b->number()));
}

bool isDifference(const Difference& difference) {
    return !sameValue(difference.from, difference.to);
}

std::vector<Difference> differences(const Source& a, const Source& b,
                                    const std::function<bool(const Difference&)>& isMeant) {
    std::vector<Difference> found;
    for (const Parameter& parameter : settings())
        if (const Difference each{&parameter, a.value(parameter), b.value(parameter)}; isMeant(each))
            found.push_back(each);
    return found;
}

std::string fileForm(const Parameter& parameter, const Value& value) {
    char line[kLineSize];
    const std::size_t length = formatLine(line, parameter.row(), value);
    if (length == 0) return {};
    const std::string_view whole(line, length - 1);
    return std::string(whole.substr(whole.find('=') + 1));
}

} // namespace talux::tool
