#include "ParamSystem/texts/CurrentTexts.h"

namespace talux {

namespace {

constexpr stParamText kNoTexts[2] = {};

} // namespace

constinit TextTable currentTexts{kNoTexts, 2};

} // namespace talux

int LoadDefParamStrings() {
    talux::currentTexts = {DefParamText, DefParamTextCount};
    return 1;
}
