// talux fingerprint: a number that two relays have in common only if their settings are the same.
#include "tools/talux/Listing.h"

#include <algorithm>
#include <sys/types.h>

#include <sha2.h>

#include "tools/talux/Command.h"
#include "tools/talux/Show.h"
#include "tools/talux/Text.h"

namespace talux::tool {

namespace {

struct Options {
    std::string source = "live";
    std::string file;
    bool listing = false;
    bool shared = false;
};

reference::File fileCalled(const std::string& name, const Context& context) {
    using reference::File;
    if (name.empty()) return File::none;
    for (const File file : {File::normal, File::security, File::address})
        if (reference::fileName(file).starts_with(name)) return file;
    throw CouldNot(
        fill(context.say("--file {}: is none of parameter.ini, sec_parameter.ini, ip_config.ini",
                         "--file {}: weder parameter.ini noch sec_parameter.ini noch ip_config.ini"),
             {printable(name)}));
}

// -0 is the same setting as 0.
std::string withoutMinusZero(std::string form) {
    const bool isMinusZero = form.starts_with('-') && form.find_first_not_of("-0.") == form.npos;
    return isMinusZero ? form.substr(1) : form;
}

Status run(const Options& options, const Context& context) {
    const Source source = Source::open(options.source, context);
    const Listing listing = listingOf(source, fileCalled(options.file, context), options.shared);
    if (options.listing)
        print(listing.text);
    else
        print(fill(context.say("{}  {}, {} settings\n", "{}  {}, {} Einstellungen\n"),
                   {fingerprintOf(listing), printable(source.name()), std::to_string(listing.settings)}));
    return kNothing;
}

} // namespace

Listing listingOf(const Source& source, reference::File only, bool isShared) {
    std::vector<std::string> lines;
    for (const Parameter& parameter : reference::parameters()) {
        if (!parameter.isSetting() || isOfClock(parameter)) continue;
        if (isShared && isIndividual(parameter)) continue;
        if (only != reference::File::none && parameter.file() != only) continue;
        if (const auto value = source.value(parameter))
            lines.push_back(
                fill("TLX_{}={}\n", {parameter.name(), withoutMinusZero(fileForm(parameter, *value))}));
    }
    std::ranges::sort(lines);
    Listing listing{{}, static_cast<int>(lines.size())};
    for (const std::string& line : lines)
        listing.text += line;
    return listing;
}

std::string fingerprintOf(const Listing& listing) {
    char digits[SHA256_DIGEST_STRING_LENGTH];
    SHA256Data(reinterpret_cast<const std::uint8_t*>(listing.text.data()), listing.text.size(), digits);
    return digits;
}

void addFingerprint(CommandLine& line) {
    const auto [command, options] = line.add(
        "fingerprint", run, {"a checksum: are settings the same?", "Prüfsumme: sind Einstellungen gleich?"});
    command.argument({"SOURCE", "QUELLE"}, options.source, {"live if not given", "sonst live"});
    command.option("--file", options.file,
                   {"only the settings of the file whose name begins with this",
                    "nur die Einstellungen der Datei, deren Name so beginnt"});
    command.flag("--shared", options.shared,
                 {"without what belongs to the single device: see list --individual",
                  "ohne was zum einzelnen Gerät gehört: siehe list --individual"});
    command.flag("--listing", options.listing,
                 {"print the text that the SHA-256 is made of", "ausgeben, wovon die SHA-256 gebildet wird"});
}

} // namespace talux::tool
