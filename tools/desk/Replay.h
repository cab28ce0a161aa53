// Recordings that the desk replays: a CSV as `talux watch --csv` writes it, and COMTRADE (IEEE C37.111,
// revisions 1999 and 2013, ASCII and binary data).
//
//   CSV        a first line with the names of measured values; U1_prim to I3_prim and phiUI1 to phiUI3 count,
//   and
//              U0_prim, I0_prim, phiUI0 where they are there. Voltages are taken as 120 degrees apart.
//   COMTRADE   name.cfg beside name.dat. Channels are found by phase (A, B, C, L1 to L3, 1 to 3) and unit (V,
//   kV,
//              A, kA); phasors are those of a discrete Fourier transform over one cycle of the line
//              frequency.
#ifndef TALUX_DESK_REPLAY_H
#define TALUX_DESK_REPLAY_H

#include <memory>
#include <stdexcept>
#include <string>

#include "tools/desk/Desk.h"

namespace desk {

// A recording that cannot be used; what() names the file, the line where there is one, and what is wrong.
struct ReplayFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

std::unique_ptr<Recording> openRecording(const std::string& path);

} // namespace desk

#endif
