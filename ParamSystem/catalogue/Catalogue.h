// All families of the catalogue, in the order of the device's menus.
#ifndef TALUX_CATALOGUE_CATALOGUE_H
#define TALUX_CATALOGUE_CATALOGUE_H

#include "ParamSystem/catalogue/AnalogInputs.h"
#include "ParamSystem/catalogue/BinaryIO.h"
#include "ParamSystem/catalogue/Display.h"
#include "ParamSystem/catalogue/EarthFault.h"
#include "ParamSystem/catalogue/Family.h"
#include "ParamSystem/catalogue/Firewall.h"
#include "ParamSystem/catalogue/Identification.h"
#include "ParamSystem/catalogue/Measurements.h"
#include "ParamSystem/catalogue/ModbusSlave.h"
#include "ParamSystem/catalogue/Network.h"
#include "ParamSystem/catalogue/ProcessImages.h"
#include "ParamSystem/catalogue/Recorder.h"
#include "ParamSystem/catalogue/Records.h"
#include "ParamSystem/catalogue/Runtime.h"
#include "ParamSystem/catalogue/Scripting.h"
#include "ParamSystem/catalogue/Security.h"
#include "ParamSystem/catalogue/SerialPorts.h"
#include "ParamSystem/catalogue/Service.h"
#include "ParamSystem/catalogue/Signals.h"
#include "ParamSystem/catalogue/Snapshot.h"
#include "ParamSystem/catalogue/State.h"
#include "ParamSystem/catalogue/Telecontrol.h"
#include "ParamSystem/catalogue/Templates.h"
#include "ParamSystem/catalogue/TimeServices.h"
#include "ParamSystem/catalogue/UserTexts.h"

namespace talux::catalogue {

inline constexpr Family kFamilies[] = {
    {"Templates", kTemplates},
    {"State", kState},
    {"Measurements", kMeasurements},
    {"Signals", kSignals},
    {"Identification", kIdentification},
    {"Display", kDisplay},
    {"Network", kNetwork},
    {"Firewall and services", kFirewall, kSecurityFamily},
    {"Time services", kTimeServices},
    {"Serial ports", kSerialPorts},
    {"Modbus slave", kModbusSlave},
    {"Telecontrol", kTelecontrol},
    {"Scripting", kScripting},
    {"Process images", kProcessImages},
    {"Analog inputs", kAnalogInputs},
    {"Binary inputs and outputs", kBinaryIO},
    {"Earth-fault detection", kEarthFault},
    {"Recorder and statistics", kRecorder},
    {"User texts", kUserTexts},
    {"Service", kService},
    {"Users and security", kSecurity, kSecurityFamily},
    {"Run-time values", kRuntime},
    {"Measurement snapshot", kSnapshot},
    {"Records", kRecords},
};

} // namespace talux::catalogue

#endif
