#include "tools/pages/Records.h"

#include "tools/pages/Names.h"
#include "tools/pages/RecordMembers.h"

namespace talux::pages {

std::map<std::string, MemberTexts, std::less<>> memberTextsOf(const Parameter& record) {
    constexpr std::span<const RecordMember> kTexts[] = {kMessRecord01, kMessRecord02, kStatRecord_c0};
    std::map<std::string, MemberTexts, std::less<>> texts;
    for (const RecordMember& row : kTexts[record.row().id - kFirstStruct])
        for (const generator::SeriesMember& member : generator::membersOf(row.members))
            texts.emplace(member.name, MemberTexts{filledIn(row.de, member), filledIn(row.en, member),
                                                   filledIn(row.twin, member), filledIn(row.enable, member)});
    return texts;
}

} // namespace talux::pages
