// The formats of recordings, one source each.
#ifndef TALUX_DESK_REPLAY_FORMATS_H
#define TALUX_DESK_REPLAY_FORMATS_H

#include "tools/desk/Replay.h"

namespace desk {

std::unique_ptr<Recording> openCsv(const std::string& path);
std::unique_ptr<Recording> openComtrade(const std::string& path);

} // namespace desk

#endif
