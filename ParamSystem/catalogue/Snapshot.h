// The snapshot of all measures that mw_req asks for, relay feedback and display level.
#ifndef TALUX_CATALOGUE_SNAPSHOT_H
#define TALUX_CATALOGUE_SNAPSHOT_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

// One line per parameter.
// clang-format off
inline constexpr ParameterRow kSnapshot[] = {
    measured(2280, "mw_U0p", kPrimaryVoltage),
    measured(2281, "mw_U1p", kPrimaryVoltage),
    measured(2282, "mw_U2p", kPrimaryVoltage),
    measured(2283, "mw_U3p", kPrimaryVoltage),
    measured(2284, "mw_U0s", kSecondaryVoltage),
    measured(2285, "mw_U1s", kSecondaryVoltage),
    measured(2286, "mw_U2s", kSecondaryVoltage),
    measured(2287, "mw_U3s", kSecondaryVoltage),
    measured(2288, "mw_I0p", kPrimaryCurrent),
    measured(2289, "mw_I1p", kPrimaryCurrent),
    measured(2290, "mw_I2p", kPrimaryCurrent),
    measured(2291, "mw_I3p", kPrimaryCurrent),
    measured(2292, "mw_I0s", kSecondaryCurrent),
    measured(2293, "mw_I1s", kSecondaryCurrent),
    measured(2294, "mw_I2s", kSecondaryCurrent),
    measured(2295, "mw_I3s", kSecondaryCurrent),
    numbered(0, 3, measured(2296, "mw_phi_U", kAngle)),
    numbered(0, 3, measured(2300, "mw_phi_I", kAngle)),
    numbered(0, 3, measured(2304, "mw_phi_UI", kAngle)),
    measured(2308, "mw_BE_AC_1", kInputVoltage),
    measured(2309, "mw_BE_Av_1", kInputVoltage),
    measured(2310, "mw_BE_AC_2", kInputVoltage),
    measured(2311, "mw_BE_Av_2", kInputVoltage),
    runtime(number(7268, "BA_RelayBack")),
    runtime(shortNumber(7006, "DisplayLevel")),
};
// clang-format on

} // namespace talux::catalogue

#endif
