/* The types and macros that every public header of the library shares. Usable from C and C++. */
#ifndef TALUX_SUPPORT_TYPES_H
#define TALUX_SUPPORT_TYPES_H

/* Marks what the shared object exports; everything else stays hidden. */
#define TALUX_API __attribute__((visibility("default")))

/*
 * Receives the output of shell terms, one chunk per call.
 * buffer:   the chunk, NUL-terminated, at most 254 characters; valid during the call only.
 * buffered: 1 while more chunks of the same answer follow, 0 with the last one.
 */
typedef void (*fnDataOut)(char* buffer, int buffered); /* NOLINT(modernize-use-using): C reads it too */

#ifdef __cplusplus

#include <cstdint>
#include <type_traits>

/*
 * The 32-bit integers of the interface. They are `long` where `long` has 32 bits, so that the exported
 * names on the device are those of `long`; elsewhere the fixed-width types of the same size.
 */
using VarLong = std::conditional_t<sizeof(long) == 4, long, std::int32_t>;
using VarULong = std::conditional_t<sizeof(long) == 4, unsigned long, std::uint32_t>;

using UINT = std::uint32_t;
using BOOL = bool;

static_assert(sizeof(VarLong) == 4 && sizeof(VarULong) == 4 && sizeof(BOOL) == 1);
static_assert(sizeof(float) == 4 && sizeof(double) == 8 && sizeof(short) == 2);

#else

#include <limits.h>
#include <stdint.h>

#if LONG_MAX == INT32_MAX
typedef long VarLong;
typedef unsigned long VarULong;
#else
typedef int32_t VarLong;
typedef uint32_t VarULong;
#endif

#endif

#endif
