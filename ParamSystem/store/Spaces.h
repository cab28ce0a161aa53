// Attaching the shared segments for programs that look at a device without becoming part of it.
#ifndef TALUX_STORE_SPACES_H
#define TALUX_STORE_SPACES_H

namespace talux {

enum class Access { readWrite, readOnly };

// Attaches the three segments that other programs have made and creates none. Null when all are attached,
// else the name of the first that is missing, "global space" for instance, with the reason in errno.
// Afterwards the accessors work; a write through a read-only attachment ends the process. Call it instead of
// VarInit, before a second thread.
const char* attachExisting(Access access);

} // namespace talux

#endif
