// Checks or writes what is generated from the dictionary and committed: docs/interface.tsv, docs/parameters.
//
//   dictionary --check PROJECT   names what is not up to date, and says what a change of the interface means
//   dictionary --accept PROJECT  writes it
#include <cstdio>
#include <filesystem>
#include <string_view>

#include "tools/WholeFile.h"
#include "tools/generator/TextPattern.h"
#include "tools/interface/Listing.h"
#include "tools/pages/Facts.h"
#include "tools/pages/Pages.h"

namespace {

using namespace talux;
using std::filesystem::path;

pages::Pages allPages(const path& folder) {
    pages::Pages pages;
    pages::addFamilies(pages);
    pages::addIndexes(pages);
    pages::addMethods(pages);
    pages::addGlossary(pages);
    pages::addPlausibility(pages);
    pages::addSearchPage(pages, contentOf(folder / "parameters.html"));
    return pages;
}

void explain(const std::string& before) {
    const auto lines = interface::changes(interface::parse(before), interface::listing());
    for (const std::string& line : lines)
        std::puts(line.c_str());
    if (lines.empty()) std::puts("The rows of the interface are in another order.");
    std::puts("The device's other programs rely on that: do they agree?");
}

// The files on disk that differ; with `isAccepted` they are written or removed.
class Committed {
public:
    explicit Committed(bool accepted) : isAccepted(accepted) {}

    void renew(const path& file, const std::string& content) {
        const std::string before = contentOf(file);
        if (before == content) return;
        ++differing;
        std::printf("%s %s\n", file.c_str(), isAccepted ? "is written" : "is out of date");
        if (file.filename() == "interface.tsv") explain(before);
        if (isAccepted && !replaceFile(file, content)) hasFailed = true;
    }

    void drop(const path& file) {
        ++differing;
        std::printf("%s %s\n", file.c_str(), isAccepted ? "is removed" : "is no page");
        if (isAccepted) std::filesystem::remove(file);
    }

    int status() const { return hasFailed || (differing > 0 && !isAccepted) ? 1 : 0; }

private:
    bool isAccepted, hasFailed = false;
    int differing = 0;
};

int renewAll(const path& project, bool isAccepted) {
    const path folder = project / "docs/parameters";
    const pages::Pages pages = allPages(folder);
    Committed committed(isAccepted);
    committed.renew(project / "docs/interface.tsv", interface::print(interface::listing()));
    for (const auto& [file, content] : pages)
        committed.renew(folder / file, content);
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (!pages.contains(entry.path().filename())) committed.drop(entry.path());
    if (committed.status() != 0)
        std::puts("scripts/dictionary.sh --accept renews the files; look at them and commit them.");
    return committed.status();
}

} // namespace

int main(int argc, char** argv) {
    const std::string_view what = argc == 3 ? argv[1] : "";
    if (what != "--check" && what != "--accept") {
        std::fputs("dictionary --check|--accept PROJECT\n", stderr);
        return 2;
    }
    try {
        const auto faults = pages::faults();
        for (const std::string& fault : faults)
            std::puts(fault.c_str());
        return faults.empty() ? renewAll(argv[2], what == "--accept") : 1;
    } catch (const generator::BrokenRule& rule) {
        std::printf("tools/pages: %s\n", rule.text.c_str());
        return 1;
    }
}
