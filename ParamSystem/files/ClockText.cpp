#include "ParamSystem/files/ClockText.h"

#include "ParamSystem/os/Os.h"
#include "support/Text.h"

namespace talux {

Value clockText(Nature nature, const std::tm& now) {
    char text[48]; // a clock that was never set may show any number
    if (nature == Nature::date)
        formatText(text, sizeof text, "%04lld-%02d-%02d", os::yearOf(now), now.tm_mon + 1, now.tm_mday);
    else
        formatText(text, sizeof text, "%02d:%02d:%02d", now.tm_hour, now.tm_min, now.tm_sec);
    return Value(std::string_view(text));
}

} // namespace talux
