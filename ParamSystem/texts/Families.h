// All text data, in menu order.
#ifndef TALUX_TEXTS_FAMILIES_H
#define TALUX_TEXTS_FAMILIES_H

#include <span>

#include "ParamSystem/texts/AnalogInputs.h"
#include "ParamSystem/texts/BinaryIO.h"
#include "ParamSystem/texts/Display.h"
#include "ParamSystem/texts/EarthFault.h"
#include "ParamSystem/texts/Firewall.h"
#include "ParamSystem/texts/Identification.h"
#include "ParamSystem/texts/Measurements.h"
#include "ParamSystem/texts/ModbusSlave.h"
#include "ParamSystem/texts/Network.h"
#include "ParamSystem/texts/ProcessImages.h"
#include "ParamSystem/texts/Recorder.h"
#include "ParamSystem/texts/Records.h"
#include "ParamSystem/texts/Runtime.h"
#include "ParamSystem/texts/Scripting.h"
#include "ParamSystem/texts/Security.h"
#include "ParamSystem/texts/SerialPorts.h"
#include "ParamSystem/texts/Service.h"
#include "ParamSystem/texts/Signals.h"
#include "ParamSystem/texts/Snapshot.h"
#include "ParamSystem/texts/State.h"
#include "ParamSystem/texts/Telecontrol.h"
#include "ParamSystem/texts/Templates.h"
#include "ParamSystem/texts/TimeServices.h"
#include "ParamSystem/texts/UserTexts.h"

namespace talux::texts {

inline constexpr std::span<const TextEntry> kFamilies[] = {
    kTemplates, kState,         kMeasurements, kSignals,     kIdentification, kDisplay,
    kNetwork,   kFirewall,      kTimeServices, kSerialPorts, kModbusSlave,    kTelecontrol,
    kScripting, kProcessImages, kAnalogInputs, kBinaryIO,    kEarthFault,     kRecorder,
    kUserTexts, kService,       kSecurity,     kRuntime,     kSnapshot,       kRecords,
};

} // namespace talux::texts

#endif
