// Writes the pages of docs/parameters from the compiled-in dictionary.
//
//   parameter_pages FRAME DIR          writes the pages into DIR, where nothing else stays; FRAME is the
//   search
//                                      page without its data
//   parameter_pages --check FRAME DIR  names the pages of DIR that are not up to date
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>

#include "tools/generator/TextPattern.h"
#include "tools/pages/Facts.h"
#include "tools/pages/Pages.h"

namespace {

using talux::pages::Pages;

std::string contentOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

Pages allPages(const char* frame) {
    Pages pages;
    talux::pages::addFamilies(pages);
    talux::pages::addIndexes(pages);
    talux::pages::addMethods(pages);
    talux::pages::addGlossary(pages);
    talux::pages::addTable(pages);
    talux::pages::addSearchPage(pages, contentOf(frame));
    return pages;
}

int write(const std::filesystem::path& folder, const Pages& pages) {
    std::filesystem::create_directories(folder);
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (!pages.contains(entry.path().filename())) std::filesystem::remove(entry);
    for (const auto& [file, content] : pages) {
        std::ofstream out(folder / file, std::ios::binary);
        if (!(out << content).flush()) {
            std::perror((folder / file).c_str());
            return 1;
        }
    }
    return 0;
}

int check(const std::filesystem::path& folder, const Pages& pages) {
    int stale = 0;
    const auto report = [&](const std::string& file, const char* what) {
        std::printf("%s %s\n", (folder / file).c_str(), what);
        ++stale;
    };
    for (const auto& [file, content] : pages)
        if (contentOf(folder / file) != content) report(file, "is out of date");
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (const std::string file = entry.path().filename(); !pages.contains(file))
            report(file, "is no page");
    if (stale > 0) std::puts("Build the target parameter_pages_update and commit what it writes.");
    return stale > 0 ? 1 : 0;
}

} // namespace

int main(int argc, char** argv) {
    const bool checks = argc == 4 && std::string_view(argv[1]) == "--check";
    if (argc != 3 && !checks) {
        std::fputs("parameter_pages [--check] FRAME DIR\n", stderr);
        return 2;
    }
    try {
        const auto faults = talux::pages::faults();
        for (const std::string& fault : faults)
            std::printf("%s\n", fault.c_str());
        if (!faults.empty()) return 1;
        const Pages pages = allPages(argv[argc - 2]);
        return checks ? check(argv[3], pages) : write(argv[2], pages);
    } catch (const talux::generator::BrokenRule& rule) {
        std::printf("tools/pages: %s\n", rule.text);
        return 1;
    }
}
