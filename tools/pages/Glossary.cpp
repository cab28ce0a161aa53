#include "tools/pages/Glossary.h"

#include <span>

#include "tools/pages/Markdown.h"
#include "tools/pages/Pages.h"

namespace talux::pages {

namespace {

void addWords(std::string& page, std::string_view heading, std::span<const Word> words) {
    page += joined({"\n## ", heading, "\n\n| English | Deutsch | | |\n|---|---|---|---|\n"});
    for (const Word& word : words)
        page += joined({"| **", escaped(word.en), "** | **", escaped(word.de), "** | ",
                        escaped(word.enMeaning), " | ", escaped(word.deMeaning), " |\n"});
}

} // namespace

void addGlossary(Pages& pages) {
    std::string page = joined({kGenerated, "# Glossary\n\n[All parameters](README.md)\n"});
    addWords(page, "Words of the trade", kTradeWords);
    addWords(page, "Words and abbreviations of the device", kDeviceWords);
    pages["glossary.md"] = page;
}

} // namespace talux::pages
