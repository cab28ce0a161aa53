// All text data, in menu order.
#ifndef TALUX_TEXTS_FAMILIES_H
#define TALUX_TEXTS_FAMILIES_H

#include <span>

#include "ParamSystem/texts/AnalogInputs.h"
#include "ParamSystem/texts/BinaryIo.h"
#include "ParamSystem/texts/Calibration.h"
#include "ParamSystem/texts/ConnectionManager.h"
#include "ParamSystem/texts/DeviceStatus.h"
#include "ParamSystem/texts/Dialogs.h"
#include "ParamSystem/texts/Display.h"
#include "ParamSystem/texts/EarthFault.h"
#include "ParamSystem/texts/EarthFaultMethods.h"
#include "ParamSystem/texts/Firewall.h"
#include "ParamSystem/texts/Identification.h"
#include "ParamSystem/texts/Measurements.h"
#include "ParamSystem/texts/Modbus.h"
#include "ParamSystem/texts/Network.h"
#include "ParamSystem/texts/Recorder.h"
#include "ParamSystem/texts/RunTimeValues.h"
#include "ParamSystem/texts/Scripting.h"
#include "ParamSystem/texts/SerialPorts.h"
#include "ParamSystem/texts/ServiceCommands.h"
#include "ParamSystem/texts/Snapshot.h"
#include "ParamSystem/texts/StateFlags.h"
#include "ParamSystem/texts/Statistics.h"
#include "ParamSystem/texts/Telecontrol.h"
#include "ParamSystem/texts/Time.h"
#include "ParamSystem/texts/UserTexts.h"
#include "ParamSystem/texts/Users.h"
#include "ParamSystem/texts/ValueTemplates.h"

namespace talux::texts {

inline constexpr std::span<const TextEntry> kFamilies[] = {
    kDialogs,     kValueTemplates,    kStateFlags,        kMeasurements, kIdentification, kDeviceStatus,
    kDisplay,     kNetwork,           kFirewall,          kTime,         kSerialPorts,    kModbus,
    kTelecontrol, kScripting,         kConnectionManager, kAnalogInputs, kCalibration,    kBinaryIo,
    kEarthFault,  kEarthFaultMethods, kRecorder,          kStatistics,   kUserTexts,      kServiceCommands,
    kUsers,       kRunTimeValues,     kSnapshot,
};

} // namespace talux::texts

#endif
