// Process images that scripts and protocols share.
#ifndef TALUX_TEXTS_PROCESSIMAGES_H
#define TALUX_TEXTS_PROCESSIMAGES_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kProcessImages[] = {
    value("vBA", {"Abbild Ausgänge", "Image outputs"},
          {"Virtuelle Ausgänge 1 bis 96 im Prozessabbild", "Virtual outputs 1 to 96 in the process image"}),
    value("vBE", {"Abbild Eingänge", "Image inputs"},
          {"Virtuelle Eingänge 1 bis 96 im Prozessabbild", "Virtual inputs 1 to 96 in the process image"}),
    value("vMWR", {"Abbild Mw. gelesen", "Image values read"},
          {"Gelesene Messwerte 1 bis 96 im Prozessabbild",
           "Measured values 1 to 96 read, in the process image"}),
    value("vMWW", {"Abbild Mw. geschr.", "Image values written"},
          {"Geschriebene Messwerte 1 bis 96 im Prozessabbild",
           "Measured values 1 to 96 written, in the process image"}),
    value("SLvBA", {"Slave-Abbild Ausgänge", "Slave image outputs"},
          {"Virtuelle Ausgänge 1 bis 96 im Prozessabbild des Slaves",
           "Virtual outputs 1 to 96 in the process image of the slave"}),
    value("SLvBE", {"Slave-Abbild Eingänge", "Slave image inputs"},
          {"Virtuelle Eingänge 1 bis 96 im Prozessabbild des Slaves",
           "Virtual inputs 1 to 96 in the process image of the slave"}),
    value("SLvMWR", {"Slave-Abbild Mw. gelesen", "Slave image val. read"},
          {"Gelesene Messwerte 1 bis 96 im Prozessabbild des Slaves",
           "Measured values 1 to 96 read, in the process image of the slave"}),
    value("SLvMWW", {"Slave-Abbild Mw. geschr.", "Slave image val. written"},
          {"Geschriebene Messwerte 1 bis 96 im Prozessabbild des Slaves",
           "Measured values 1 to 96 written, in the process image of the slave"}),
    value("lua_modbus", {"Modbus-Skripttext", "Modbus script text"},
          {"Text, den Skript und Modbus-Programm austauschen",
           "Text that the script and the Modbus program exchange"}),
};

} // namespace talux::texts

#endif
