// The change flags: global bool parameters that ask the device's other programs to look again. The store
// raises them and never takes them back.
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
