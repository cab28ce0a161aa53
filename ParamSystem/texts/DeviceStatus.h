// What the device tells about itself.
#ifndef TALUX_TEXTS_DEVICESTATUS_H
#define TALUX_TEXTS_DEVICESTATUS_H

#include "ParamSystem/texts/Words.h"

namespace talux::texts {

inline constexpr TextEntry kDeviceStatus[] = {
    value("MAC_adress", {"MAC-Adresse", "MAC address"},
          {"Hardware-Adresse der Ethernet-Schnittstelle ETH0",
           "Hardware address of the Ethernet interface ETH0"}),
    value("Kernel_version", {"Kernel-Version", "Kernel version"},
          {"Version des Betriebssystemkerns", "Version of the operating system kernel"}),
    value("rootfs_version", {"Dateisystem-Version", "Root filesystem version"},
          {"Version des Grunddateisystems", "Version of the base file system"}),
    value("FW_version", {"Firmware-Version", "Firmware version"},
          {"Version der Gerätesoftware", "Version of the device's software"}),
    value("Algo_version", {"Algorithmen-Version", "Algorithm version"},
          {"Version der Ortungsverfahren", "Version of the detection methods"}),
    value("Cortex_version", {"Messkern-Version", "Signal core version"},
          {"Softwareversion des Messprozessors", "Software version of the measuring processor"}),
    value("XML_version", {"XML-Version", "XML version"},
          {"Version der Gerätebeschreibung für die Parametriersoftware",
           "Version of the device description for the configuration software"}),
    value("Status_art_no", {"Artikelnummer", "Article number"},
          {"Artikelnummer der Gerätevariante", "Article number of the device variant"}),
    value("Status_ser_no", {"Seriennummer", "Serial number"},
          {"Fertigungsnummer dieses Geräts", "Production number of this device"}),
    value("Status_ord_no", {"Auftragsnummer", "Order number"},
          {"Auftrag, unter dem das Gerät geliefert wurde", "Order under which the device was delivered"}),
    value("Status_dat", {"Prüfdatum", "Test date"},
          {"Tag der Endprüfung im Werk", "Day of the final test in the factory"}),
    value("Status_ins", {"Prüfer", "Inspector"},
          {"Kürzel des Prüfers der Endprüfung", "Initials of the inspector of the final test"}),
    value("Status_sdcard", {"SD-Karte", "SD card"},
          {"Zustand der eingelegten SD-Karte", "State of the inserted SD card"}),
    value("Status_rtc", {"Echtzeituhr", "Real-time clock"},
          {"Zustand der batteriegepufferten Uhr", "State of the battery-backed clock"}),
};

} // namespace talux::texts

#endif
