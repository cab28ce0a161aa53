// Time zone, time servers, receivers and senders of the time.
#ifndef TALUX_TEXTS_TIMESERVICES_H
#define TALUX_TEXTS_TIMESERVICES_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kTimeServices[] = {
    value("NTP{1,2}", {"NTP-Server {n}", "NTP server {n}"},
          {"Adresse von NTP-Zeitserver {n}; 0.0.0.0 = keiner",
           "Address of NTP time server {n}; 0.0.0.0 = none"}),
};

} // namespace talux::texts

#endif
