// talux fingerprint: a number that two relays have in common only if their settings are the same.
#include "tools/talux/Fingerprint.h"

#include <sha2.h>
#include <sys/types.h> // for the next one

#include "tools/talux/Search.h"
#include "tools/talux/Show.h"

namespace talux::tool {

namespace {

struct Options {
    std::string source = "live", file;
    bool listing = false, shared = false;
};

// -0 is the same setting as 0.
std::string withoutMinusZero(std::string form) {
    const bool isMinusZero = form.starts_with('-') && form.find_first_not_of("-0.") == form.npos;
    return isMinusZero ? form.substr(1) : form;
}

Status run(const Options& options, const Context& context) {
    const Source source = Source::open(options.source, context);
    const auto lines = linesOf(source, fileCalled(options.file, context), options.shared);
    print(options.listing ? list(lines, "")
                          : fill("{}  {}, {}\n", {fingerprintOf(lines), printable(source.name()),
                                                  context.counted(lines.size(), kSetting, kSettings)}));
    return kNothing;
}

} // namespace

std::vector<std::string> linesOf(const Source& source, File only, bool isShared) {
    std::vector<std::string> lines;
    for (const Parameter& parameter : settings()) {
        if ((isShared && isIndividual(parameter)) || (only != File::none && parameter.file() != only))
            continue;
        if (const auto value = source.value(parameter))
            lines.push_back(
                fill("TLX_{}={}\n", {parameter.name(), withoutMinusZero(fileForm(parameter, *value))}));
    }
    std::ranges::sort(lines);
    return lines;
}

std::string fingerprintOf(const std::vector<std::string>& lines) {
    const std::string text = list(lines, "");
    char digits[SHA256_DIGEST_STRING_LENGTH];
    return SHA256Data(reinterpret_cast<const std::uint8_t*>(text.data()), text.size(), digits);
}

void addFingerprint(CommandLine& line) {
    const auto [command, options] = line.add(
        "fingerprint", run, {"a checksum: are settings the same?", "Prüfsumme: sind Einstellungen gleich?"});
    command.argument({"SOURCE", "QUELLE"}, options.source, {"live if not given", "sonst live"},
                     Need::optional);
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
