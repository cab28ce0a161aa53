// Process images that scripts and protocols share.
#ifndef TALUX_TEXTS_PROCESSIMAGES_H
#define TALUX_TEXTS_PROCESSIMAGES_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kProcessImages[] = {
    value("vBA", {"Prozessabbild Ausgänge", "Process image: outputs"},
          {"Virtuelle Ausgänge 1 bis 96 im Prozessabbild", "Virtual outputs 1 to 96 in the process image"}),
    value("vBE", {"Prozessabbild Eingänge", "Process image: inputs"},
          {"Virtuelle Eingänge 1 bis 96 im Prozessabbild", "Virtual inputs 1 to 96 in the process image"}),
    value("vMWR", {"Messwerte gelesen", "Measured values read"},
          {"Gelesene Messwerte 1 bis 96 im Prozessabbild",
           "Measured values 1 to 96 read, in the process image"}),
    value("vMWW", {"Messwerte geschrieben", "Measured values written"},
          {"Geschriebene Messwerte 1 bis 96 im Prozessabbild",
           "Measured values 1 to 96 written, in the process image"}),
    value("SLvBA", {"Slave: Ausgänge", "Slave: outputs"},
          {"Virtuelle Ausgänge 1 bis 96 im Prozessabbild des Slaves",
           "Virtual outputs 1 to 96 in the process image of the slave"}),
    value("SLvBE", {"Slave: Eingänge", "Slave: inputs"},
          {"Virtuelle Eingänge 1 bis 96 im Prozessabbild des Slaves",
           "Virtual inputs 1 to 96 in the process image of the slave"}),
    value("SLvMWR", {"Slave: Werte gelesen", "Slave: values read"},
          {"Gelesene Messwerte 1 bis 96 im Prozessabbild des Slaves",
           "Measured values 1 to 96 read, in the process image of the slave"}),
    value("SLvMWW", {"Slave: Werte geschrieben", "Slave: values written"},
          {"Geschriebene Messwerte 1 bis 96 im Prozessabbild des Slaves",
           "Measured values 1 to 96 written, in the process image of the slave"}),
    label("lua_modbus", {"Text Lua-Modbus", "Lua Modbus text"}),
};

} // namespace talux::texts

#endif
