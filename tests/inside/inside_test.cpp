// The bytes of every type, links, and what the pages say of refusals.
#include "ParamSystem/kepl/Command.h"
#include "ParamSystem/kepl/Refusal.h"
#include "ParamSystem/kepl/ValueType.h"
#include "ParamSystem/os/Files.h"
#include "talux/group_slot.hpp"
#include "tests/Store.h"

#include <unistd.h>

namespace {

using namespace talux;
using namespace std::literals;

TEST(Inside, ALinkFitsItsRoomOrIsCut) {
    for (const int length : {31, 32, 33, 34}) {
        const std::string target(static_cast<std::size_t>(length), 'x'),
            link = "/tmp/link" + std::to_string(length);
        ASSERT_EQ(symlink(target.c_str(), link.c_str()), 0);
        char room[34];
        std::memset(room, '#', sizeof room);
        EXPECT_EQ(os::readLink(link.c_str(), room, 33), length < 33);
        EXPECT_EQ(room, target.substr(0, 32));
        EXPECT_EQ(room[33], '#');
        unlink(link.c_str());
    }
}

TEST(Inside, NumbersKeepTheWidthOfTheirType) {
    for (int type = 0; type < 3000; ++type) {
        const kepl::NumberBytes bytes = kepl::encode(100, type);
        EXPECT_EQ(kepl::decode(bytes.data, type), bytes.size == 0 ? 0 : 100) << type;
    }
    constexpr std::pair<int, std::size_t> kWidths[] = {{2002, 8}, {2003, 4}, {2004, 4}, {2005, 4}, {2006, 8},
                                                       {2007, 8}, {2008, 2}, {2009, 1}, {2010, 1}, {2011, 0}};
    for (const auto& [type, width] : kWidths)
        EXPECT_EQ(kepl::encode(1, type).size, width) << type;
}

TEST(Inside, RefusalsAndCommandWordsAreOnTheirPageAndKnownToScripts) {
    const std::string page = talux_test::contents(TALUX_PROJECT "/docs/kepl.md"),
                      layer = talux_test::contents(TALUX_PROJECT "/lua/talux.lua");
    const std::string patterns = layer.substr(layer.find("local refusals"), 400);
    const auto isRefusal = [&](const std::string& answer) {
        for (std::size_t at = patterns.find("\"^"); at != patterns.npos; at = patterns.find("\"^", at + 2)) {
            const std::size_t start = at + 2, end = patterns.find_first_of("\"$", start);
            if (answer.starts_with(patterns.substr(start, end - start))) return true;
        }
        return false;
    };
    const auto isShown = [&](const std::string& text) { return page.find("`" + text) != page.npos; };
    for (std::size_t k = 1; k < enumeratorsOf<kepl::Refusal>(); ++k) {
        const std::string text = kepl::textOf(static_cast<kepl::Refusal>(k));
        const std::string bare = text.starts_with("<< ") ? text.substr(3, text.size() - 6) : text;
        EXPECT_TRUE(isShown(bare) || isShown(bare.substr(0, 7) + " ..`"))
            << text << " is not in docs/kepl.md";
        EXPECT_TRUE(isRefusal(text)) << text << " is no refusal in lua/talux.lua";
    }
    for (const kepl::CommandRow& row : kepl::kCommands) {
        EXPECT_TRUE(isShown(std::string(row.word))) << row.word << " is not in docs/kepl.md";
        EXPECT_TRUE(row.failure == ""sv || isRefusal(row.failure))
            << row.failure << " is no refusal in lua/talux.lua";
    }
}

// Which are removed where there are no namespaces.
TEST(Inside, TheScriptKnowsTheSegments) {
    std::string keys = "keys=(";
    for (const auto key : {kStructSpaceKey, kGlobalSpaceKey, kTempSpaceKey, detail::kGroupsKey})
        keys += std::to_string(key) + (key == detail::kGroupsKey ? ")" : " ");
    EXPECT_NE(talux_test::contents(TALUX_PROJECT "/scripts/isolated.sh").find(keys), std::string::npos)
        << keys;
}

} // namespace
