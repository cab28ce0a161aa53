#include "ParamSystem/dictionary/WorkingTexts.h"

#include <algorithm>

namespace talux {

constinit stParamText ParamText[kParamTextRows] = {};

void endTextTable(int row) {
    std::fill(ParamText + row, ParamText + kParamTextRows, stParamText{});
    if (row == 0) ParamText[0].txt = "***";
}

} // namespace talux

using namespace talux;

int LoadDefParamStrings() {
    endTextTable(0);
    for (int row = 1; DefParamText[row].id != 0; ++row)
        ParamText[row] = DefParamText[row];
    return 1;
}
