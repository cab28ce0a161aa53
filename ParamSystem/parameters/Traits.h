// What is known of a parameter besides its value and its texts.
#ifndef TALUX_PARAMETERS_TRAITS_H
#define TALUX_PARAMETERS_TRAITS_H

#include "ParamSystem/rules/Rules.h"

namespace talux::parameters {

// Of a text or an address whose form is stricter than that of its type.
using rules::Form;
inline constexpr Form kOfItsType = Form::none, kNetmask = Form::netmask;

// Combined with |.
enum Trait : unsigned {
    kUnwritable = 1, // for everyone
    kRuntime = 2,    // in the global space only, no default
    kSecurity = 4,   // takes user level 3, and every write is logged
    kIndividual = 8, // belongs to this one device: its names, addresses, station numbers and calibration
    kSecret = 16,    // is not shown in reports
};

// What a write does besides storing the value.
enum WriteEffect : int { kNoEffect, kAppliesNetwork, kSetsClock };

enum NoteKind : int {
    kWarning, // a wrong value or a careless write does harm, or does not do what one expects
    kUnknown, // the meaning is not documented, or only read from the name
    kAdvice   // good to know
};

// The detection methods, in the order of kMethods (Methods.h).
enum MethodId : int {
    kUearth,
    kPriorities,
    kQu2,
    kQui,
    kHarm1,
    kHarm2,
    kAdm,
    kCos,
    kSin,
    kCosSin,
    kP50,
    kHpci,
    kShortCircuit,
    kFreq,
    kOtherFunctions,
    kNoMethod = -1
};

// What a setting is to its method.
enum Role : int {
    kEnable,    // the switch of the method, then those of its parts
    kThreshold, // from which on it evaluates
    kSetting,   // angle, cycles, choice, switch
    kDelay,
    kDuration,
    kLog
};

struct Place {
    MethodId method = kNoMethod;
    Role role = kSetting;
};

} // namespace talux::parameters

#endif
