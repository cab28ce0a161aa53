// Texts and choice lists without a value of their own: the dialogs of the device, and what several parameters
// share.
#ifndef TALUX_CATALOGUE_TEMPLATES_H
#define TALUX_CATALOGUE_TEMPLATES_H

#include "ParamSystem/catalogue/Row.h"

namespace talux::catalogue {

inline constexpr ParameterRow kTemplates[] = {
    dialog(18000, "DLG_Test"),
    dialog(18001, "DLG_Information"),
    dialog(18002, "DLG_Progress"),
    dialog(18003, "DLG_Success"),
    dialog(18004, "DLG_Error"),
    dialog(18005, "DLG_Confirmation"), // yes or no
    dialog(18006, "DLG_SwitchTo"),
    dialog(18007, "DLG_SwitchToMenu"),
    dialog(18008, "DLG_SwitchToMeasurement"),
    dialog(18009, "DLG_CalibrationStart"),
    dialog(18010, "DLG_CalibrationVoltage"), // apply the reference voltage
    dialog(18011, "DLG_CalibrationRunning"),
    dialog(18012, "DLG_CalibrationRange"), // measured voltage outside the permitted range
    dialog(18013, "DLG_CalibrationResult"),
    dialog(18014, "DLG_CalibrationConfirm"), // take the new ratios over?
    dialog(18015, "DLG_CalibrationDone"),
    dialog(18016, "DLG_CalibrationAborted"),
    dialog(18017, "DLG_FactorySettings"), // restore them?
    dialog(18018, "DLG_UserLevel"),
    dialog(18019, "DLG_UserLevelLow"), // refusal
    dialog(18020, "DLG_LCDLogReset"),

    choiceTemplate(kBaudRate),
    choiceTemplate(kDataBits),
    choiceTemplate(kParity),
    choiceTemplate(kStopBits),
    choiceTemplate(kHandshake),
    choiceTemplate(kTermination),
    decimalTemplate(kCtRatio, {.def = 100, .min = 0.1, .max = 90000}),
    choiceTemplate(kInputFunction),
    choiceTemplate(kInputPolarity),
    choiceTemplate(kOutputFunction),
    choiceTemplate(kPriorityFunction),
    choiceTemplate(kDisplayMeasure),
    choiceTemplate(kOutputPolarity),
};

} // namespace talux::catalogue

#endif
