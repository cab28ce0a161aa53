// Process images of inputs, outputs and measures, those of the script server and of the Modbus slaves.
#ifndef TALUX_PARAMETERS_PROCESS_IMAGES_H
#define TALUX_PARAMETERS_PROCESS_IMAGES_H

#include "ParamSystem/parameters/Row.h"

namespace talux::parameters {

inline constexpr Row kProcessImagesRows[] = {
    indexed(96, number(6588, "vBA", {.is = kRuntime},
                       {{"Prozessabbild Ausgänge", "Virtuelle Ausgänge 1 bis 96 im Prozessabbild"},
                        {"Process image: outputs", "Virtual outputs 1 to 96 in the process image"}})),
    indexed(96, number(6684, "vBE", {.is = kRuntime},
                       {{"Prozessabbild Eingänge", "Virtuelle Eingänge 1 bis 96 im Prozessabbild"},
                        {"Process image: inputs", "Virtual inputs 1 to 96 in the process image"}})),
    indexed(96,
            doubleNumber(1000, "vMWR", {.is = kRuntime},
                         {{"Messwerte gelesen", "Gelesene Messwerte 1 bis 96 im Prozessabbild"},
                          {"Measured values read", "Measured values 1 to 96 read, in the process image"}})),
    indexed(96, doubleNumber(
                    1096, "vMWW", {.is = kRuntime},
                    {{"Messwerte geschrieben", "Geschriebene Messwerte 1 bis 96 im Prozessabbild"},
                     {"Measured values written", "Measured values 1 to 96 written, in the process image"}})),
    indexed(96, number(6780, "SLvBA", {.is = kRuntime},
                       {{"Slave: Ausgänge", "Virtuelle Ausgänge 1 bis 96 im Prozessabbild des Slaves"},
                        {"Slave: outputs", "Virtual outputs 1 to 96 in the process image of the slave"}})),
    indexed(96, number(6876, "SLvBE", {.is = kRuntime},
                       {{"Slave: Eingänge", "Virtuelle Eingänge 1 bis 96 im Prozessabbild des Slaves"},
                        {"Slave: inputs", "Virtual inputs 1 to 96 in the process image of the slave"}})),
    indexed(96,
            doubleNumber(
                1192, "SLvMWR", {.is = kRuntime},
                {{"Slave: Werte gelesen", "Gelesene Messwerte 1 bis 96 im Prozessabbild des Slaves"},
                 {"Slave: values read", "Measured values 1 to 96 read, in the process image of the slave"}})),
    indexed(96, doubleNumber(1288, "SLvMWW", {.is = kRuntime},
                             {{"Slave: Werte geschrieben",
                               "Geschriebene Messwerte 1 bis 96 im Prozessabbild des Slaves"},
                              {"Slave: values written",
                               "Measured values 1 to 96 written, in the process image of the slave"}})),
    text(9032, "lua_modbus", {.is = kRuntime}, {{"Text Lua-Modbus"}, {"Lua Modbus text"}}),
};

inline constexpr Note kProcessImagesNotes[] = {
    unknown("vMWR vMWW SLvMWR SLvMWW",
            "Einheit und Bedeutung legen Skript oder Gegenstelle fest. Aus wessen Sicht gelesen (R) und "
            "geschrieben (W) wird, ist nicht dokumentiert.",
            "Script or remote station define unit and meaning. From whose point of view the values are read "
            "(R) and written (W) is not documented."),
    unknown("vBA vBE SLvBA SLvBE",
            "Welches Programm des Geräts die Werte setzt und welches sie liest, ist nicht dokumentiert. "
            "Diese Bibliothek und ihre Skripte können sie lesen und schreiben.",
            "Which program of the device sets the values and which reads them is not documented. This "
            "library and its scripts can read and write them."),
};

} // namespace talux::parameters

#endif
