// The bare work: what each operation costs when nothing is done but the work itself. Names are found by a
// perfect hash, values are copied under the same kind of locks from and to the same slots, numbers are
// converted by the C++ library. No rights, no language, no refusals beyond the range: a floor to compare
// with, not a replacement.
#ifndef TALUX_BENCH_BARE_H
#define TALUX_BENCH_BARE_H

namespace bare {

// Builds the hash from the dictionary; the store must be attached.
void prepare();

// "TLX_<name>" of a number: its value with six decimals in `answer`, which takes 64 characters.
void read(const char* line, char* answer);

// "TLX_<name>=<number>" within the range.
void write(const char* line);

// The first `count` elements of an indexed long parameter.
void readLongs(const char* name, int* values, int count);

void commit();

// A parameter file of numbers and quoted texts, whole; load commits.
void load(const char* path);
void save(const char* path);

} // namespace bare

#endif
