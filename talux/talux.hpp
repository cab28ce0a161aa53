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
// Works without exceptions and RTTI and allocates nothing. Threads and processes: as for the accessors of
// ParamSystem/TALUX_Var.h, which do the work.
#ifndef TALUX_TALUX_HPP
#define TALUX_TALUX_HPP

#if __cplusplus <= 201703L
#error "talux/talux.hpp needs C++20: compile with -std=c++20, or use ParamSystem/TALUX_Var.h"
#else // so that this is the only error

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

    // A commit, then parameter.ini, sec_parameter.ini or ip_config.ini. True when the file and its dated copy
    // are on the disk, whatever other programs save meanwhile.
    Result save() { return saved(SavedFile::parameters); }
    Result save_sec() { return saved(SavedFile::security); }
    Result save_ip() { return saved(SavedFile::addresses); }

    // Load a file and make it live; the last one applies the network settings too. False when it cannot be
    // opened, for instance because it was never saved; lines without a setting are skipped.
    Result load() { return loaded(VarLoadParams()); }
    Result load_sec() { return loaded(VarLoadSecParams()); }
    Result load_ip() { return loaded(VarLoadIPConfig()); }

private:
    static Result saved(SavedFile file) {
        const int error = VarSaveError(file);
        return error == 0 ? Result() : Result(Reason::notSaved, error);
    }
    static Result loaded(int result) { return result == 1 ? Reason::none : Reason::notLoaded; }
};

} // namespace talux

#endif
#endif
