// Splits a text into tokens, in place, in a buffer that the caller owns.
#ifndef TALUX_STRINGTOKENIZER_H
#define TALUX_STRINGTOKENIZER_H

#include "support/Types.h"

/*
 * Tokens are pointers into the caller's buffer, each ended by a NUL written over its delimiter. They stay
 * valid until the next accepted SetString on the same buffer. A NUL in the buffer is a delimiter in every
 * set, so the set may be changed between two tokens. Nothing is allocated; one object serves one thread.
 */
class TALUX_API StringTokenizer {
public:
    // Longest delimiter set.
    static constexpr UINT kMaxDelimiters = 199;

    StringTokenizer();

    // Sets the buffer for the working copy. It is the caller's, must outlive the tokens and hold every string
    // that is set, with its NUL. Needed before the first SetString; changes nothing else.
    void SetBuffer(char* buf);

    // The same for a buffer of `size` bytes (at most 65534 are used): a string that does not fit is
    // refused.
    void SetBuffer(char* buf, UINT size);

    /*
     * Starts on a copy of `str`, split at any character of `delim`. With `returnTokens` each delimiter is
     * a token of its own, and a token must not be used after the next call, which restores the delimiter
     * at its end. Refused, with the old string, position and set unchanged: no buffer, `str` null or
     * empty, `str` longer than the buffer holds, `delim` longer than kMaxDelimiters.
     */
    void SetString(char* str, const char* delim, BOOL returnTokens);

    // True when another token follows; skips the delimiters before it.
    BOOL hasMoreTokens();

    // The next token, or null when none is left.
    char* nextToken();

    // Changes the set for this call and all later ones, then works as nextToken(). A set longer than
    // kMaxDelimiters is cut.
    char* nextToken(const char* delim);

    // How many tokens nextToken() would still return; changes nothing.
    UINT countTokens();

protected:
    UINT currentPosition; // next character to examine
    UINT maxPosition;     // length of the string in the buffer
    char* buffer;
    char delimiters[kMaxDelimiters + 1];
    BOOL retTokens;

private:
    // These are in the padding after retTokens.
    char endedBy; // with retTokens: the character under the NUL that ended the last token
    unsigned short bufferSize;

    void skipDelimiters();
};

#endif
