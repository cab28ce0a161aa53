#include "ParamSystem/kepl/Line.h"

#include <algorithm>
#include <cstring>

#include "ParamSystem/dictionary/Types.h"
#include "ParamSystem/kepl/Answer.h"
#include "ParamSystem/os/Os.h"
#include "ParamSystem/support/Text.h"

namespace talux::kepl {

void Line::setTerm(const char* text) {
    std::string_view cut(text, strnlen(text, kKeplMaxTerm));
    cut.remove_prefix(std::min(cut.find_first_not_of(' '), cut.size()));
    copyText(szToken, cut);
}

Flow Line::fail(Refusal text) {
    copyText(error, text);
    return kFailed;
}

Flow Line::answer(const char* text) {
    const std::size_t length = std::strlen(text);
    std::memmove(result, text, length);
    std::memcpy(result + length, terminator, std::strlen(terminator) + 1);
    return kAnswered;
}

Flow Line::refuseRights() {
    os::logError("%s %s", szToken, refuse(szUIDWrong));
    return answer(refuse(szUIDWrong));
}

Flow Line::showText() {
    output = Output::text;
    return kNextTerm;
}

Flow Line::push(double value, int type) {
    if (iSP >= kKeplStackSize) return fail(refuse(szSyntaxError));
    adStack[iSP] = value;
    aiType[iSP] = type;
    ++iSP;
    return kNextTerm;
}

Flow Line::finish() {
    switch (output) {
    case Output::terminatorOnly:
        return answer("");
    case Output::text:
        return answer(txt);
    case Output::nothing:
        *result = '\0';
        return kAnswered;
    case Output::topOfStack:
        break;
    }
    if (iSP == 0) return fail(refuse(szSyntaxError));
    const NumberText top(adStack[iSP - 1], typeOf(aiType[iSP - 1]).shownDecimals);
    copyText(txt, top.view());
    return answer(txt);
}

} // namespace talux::kepl
