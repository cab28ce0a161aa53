#include "tools/reference/Members.h"

#include "tools/generator/TextPattern.h"
#include "tools/reference/RecordMembers.h"

namespace talux::reference {

std::map<std::string, MemberTexts, std::less<>> memberTextsOf(const Parameter& record) {
    constexpr std::span<const RecordMember> kTexts[] = {kMessRecord01, kMessRecord02, kStatRecord_c0};
    std::map<std::string, MemberTexts, std::less<>> texts;
    for (const RecordMember& row : kTexts[record.row().id - kFirstStruct])
        for (const generator::SeriesMember& member : generator::membersOf(row.members))
            texts.emplace(member.name, MemberTexts{filledIn(row.de, member), filledIn(row.en, member),
                                                   filledIn(row.twin, member), filledIn(row.enable, member)});
    return texts;
}

std::vector<Member> membersOf(const Parameter& record) {
    const auto texts = memberTextsOf(record);
    std::vector<Member> all;
    for (const auto& properties : members(record))
        all.push_back({&record, &properties, texts.at(properties.aszMemberName)});
    return all;
}

} // namespace talux::reference
