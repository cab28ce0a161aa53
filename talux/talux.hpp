// The store for C++20 programs: parameters as typed handles, found by name while compiling.
//
//   constexpr talux::Measured<float> u0{"U0_prim"};
//   constexpr talux::Setting<float> threshold{"Uearth"};
//
//   talux::Store store;
//   if (u0.get() > threshold.live()) alarm();
//   if (const auto done = threshold.stage(95); !done) log(done.text());
//   store.commit();
//
// Works without exceptions and RTTI and takes no heap. Threads and processes: as for the accessors of
// ParamSystem/TALUX_Var.h, which do the work.
#ifndef TALUX_TALUX_HPP
#define TALUX_TALUX_HPP

#include "talux/change.hpp"
#include "talux/group.hpp"

namespace talux {

// The attached store with the dictionary loaded: one for the life of the program, made before its second
// thread.
class Store {
public:
    Store() {
        char directory[] = "";
        if (pVarGlobal == nullptr) VarInit(directory);
        LoadDefParamProperties();
    }
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    // Factory defaults of all settings into the working copy.
    void stage_defaults() { VarSetDefault(); }

    // Makes every staged setting live.
    void commit() { VarUpdateGlobalSpace(); }
};

} // namespace talux

#endif
