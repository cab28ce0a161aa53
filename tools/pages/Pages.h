// The pages of docs/parameters, each by the name of its file.
#ifndef TALUX_PAGES_PAGES_H
#define TALUX_PAGES_PAGES_H

#include <map>
#include <string>

namespace talux::pages {

using Pages = std::map<std::string, std::string>;

void addFamilies(Pages& pages); // one page per menu family
void addIndexes(Pages& pages);  // entry page
void addMethods(Pages& pages);
void addGlossary(Pages& pages);
void addPlausibility(Pages& pages);

// All parameters on one page to search: `page` with new data.
void addSearchPage(Pages& pages, std::string page);

} // namespace talux::pages

#endif
