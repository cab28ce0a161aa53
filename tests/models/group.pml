/* The protocol of talux/group_slot.hpp on processors that reorder: two writers, a reader, a sleeper.
 *
 * A write of shared memory goes into a buffer of its writer and reaches memory at any time, in any order among
 * different places; a release fence (FENCE) empties the buffer first. Loads come from memory: the reader's
 * acquire loads and fence keep their order. Without FENCE_1 or FENCE_2 the reader gets values of two writes;
 * with RECHECK left out, too; without FENCE_3 the sleeper sleeps for ever.
 *
 *   spin -run group.pml                every run ends, no assertion fails
 *   spin -DNO_FENCE_1 -run group.pml   finds the fault; likewise NO_FENCE_2, NO_FENCE_3, NO_RECHECK
 */
#define WRITES 2

byte sequence, first, second, awaited; /* memory */
bool inside;                           /* the semaphore */
byte writersDone;
bool woken;

/* What a writer has written and memory has not: one place each is enough, since a second write to the same
 * place replaces the first only after that has reached memory. */
typedef Buffer { bool hasSequence, hasFirst, hasSecond; byte sequence, first, second };
Buffer buffers[WRITES];

#define drained(w) (!buffers[w].hasSequence && !buffers[w].hasFirst && !buffers[w].hasSecond)
#define flushSequence(w) d_step { sequence = buffers[w].sequence; buffers[w].hasSequence = false }
#define flushFirst(w) d_step { first = buffers[w].first; buffers[w].hasFirst = false }
#define flushSecond(w) d_step { second = buffers[w].second; buffers[w].hasSecond = false }

proctype Memory(byte w) {
    end: do
    :: buffers[w].hasSequence -> flushSequence(w)
    :: buffers[w].hasFirst -> flushFirst(w)
    :: buffers[w].hasSecond -> flushSecond(w)
    od
}

inline store_sequence(w, value) {
    !buffers[w].hasSequence; d_step { buffers[w].sequence = value; buffers[w].hasSequence = true }
}
inline store_values(w, value) {
    d_step { buffers[w].first = value; buffers[w].hasFirst = true };
    d_step { buffers[w].second = value; buffers[w].hasSecond = true }
}

proctype Writer(byte w) {
    byte odd;
    atomic { !inside -> inside = true }; /* semtimedop: a barrier, and mutual exclusion */
    odd = (sequence + 1) | 1;
    store_sequence(w, odd);
#ifndef NO_FENCE_1
    drained(w); /* FENCE_1: no value before the counter is odd */
#endif
    store_values(w, w + 1);
#ifndef NO_FENCE_2
    drained(w); /* FENCE_2: all values before it is even */
#endif
    store_sequence(w, odd + 1);
#ifndef NO_FENCE_3
    drained(w); /* FENCE_3: the counter before the look at awaited; semop is one, too */
#endif
    if
    :: awaited -> awaited = 0; drained(w); woken = true
    :: else
    fi;
    drained(w);
    atomic { inside = false; writersDone++ }
}

proctype Reader() {
    byte before, a, b;
    do
    :: before = sequence;
       if
       :: before % 2 == 0 && before > 0 ->
          a = first;
          b = second;
#ifndef NO_RECHECK
          if
          :: sequence == before -> assert(a == b); break
          :: else
          fi
#else
          assert(a == b); break
#endif
       :: else -> (sequence != before || writersDone == WRITES)
       fi
    od
}

/* Waits for the first write. The kernel compares and sleeps in one step. */
proctype Sleeper() {
    byte seen;
    do
    :: seen = sequence;
       if
       :: seen != 0 && seen % 2 == 0 -> break
       :: else ->
          awaited = 1;
          atomic {
              if
              :: sequence == seen -> woken = false
              :: else -> goto again
              fi
          };
          woken; /* without a wake-up this process stays here: an invalid end state */
          again: skip
       fi
    od
}

init {
    atomic {
        run Writer(0); run Writer(1);
        run Memory(0); run Memory(1);
        run Reader(); run Sleeper()
    }
}
