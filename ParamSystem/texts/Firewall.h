// Firewall per interface, file transfer, boot.
#ifndef TALUX_TEXTS_FIREWALL_H
#define TALUX_TEXTS_FIREWALL_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kFirewall[] = {
    value("FW_{ETH0,ETH1,ETHW=WLAN}_ssh", {"SSH über {n}", "SSH through {n}"},
          {"SSH-Zugriff (Port 22) über {n} erlauben", "Allow SSH access (port 22) through {n}"}),
};

} // namespace talux::texts

#endif
