// The change flags: global bool parameters that ask the device's other programs to read settings again. The
// store sets them and never clears them.
#ifndef TALUX_STORE_CHANGEFLAGS_H
#define TALUX_STORE_CHANGEFLAGS_H

namespace talux {

enum class ChangeFlag { param, ip, stm, secParam };
inline constexpr int kChangeFlagCount = 4;

// The parameters, in this order.
extern const int kChangeFlagIds[kChangeFlagCount];

void raise(ChangeFlag flag);

} // namespace talux

#endif
