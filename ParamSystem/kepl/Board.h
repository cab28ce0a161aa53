// The boards that the library knows, and what their shells must not run.
#ifndef TALUX_KEPL_BOARD_H
#define TALUX_KEPL_BOARD_H

#include <span>
#include <string_view>

#include "support/EnumRows.h"

namespace talux::kepl {

// As KEPL_Interpreter::read_machine() numbers them; it has -1 for any other machine.
enum class Board : signed char { arm5, arm7 };
inline constexpr int kOtherBoard = -1;

// Fragments of a command that end the process: tools of the boot environment, backups, a test output.
inline constexpr std::string_view kForbiddenArm5[] = {"talux-pondo"};
inline constexpr std::string_view kForbiddenArm7[] = {
    "fw_printenv", "fw_setenv", "talux-bcard31", "bck_appfs", "backup.tgz", "/sys/class/gpio/gpio105/value",
};

struct BoardRow {
    Board board;
    std::string_view machine; // name that the kernel gives it
    std::span<const std::string_view> forbidden;
};

inline constexpr BoardRow kBoards[] = {
    {Board::arm5, "armv5tejl", kForbiddenArm5},
    {Board::arm7, "armv7l", kForbiddenArm7},
};
static_assert(hasRowForEach<&BoardRow::board>(kBoards), "each enumerator has its row, in the same order");

} // namespace talux::kepl

#endif
