/*
 * The three entry functions from C: evaluates the lines of standard input, one answer per line.
 *
 *   printf 'TLX_U1_prim,1000,/\nsystem date\n' | entry
 */
#include "src/talux_interpreter.h"

#include <stdio.h>
#include <string.h>

/* The output of shell terms, chunk by chunk. */
static void print_output(char* buffer, int buffered) {
    fputs(buffer, stdout);
    if (!buffered) fflush(stdout);
}

static void evaluate(char* line) {
    char answer[TALUX_ANSWER_SIZE];
    char error[128];
    switch (talux_interpreter_ProcessLine(line, print_output, answer, "\n")) {
    case 1:
        fputs(answer, stdout);
        break;
    case 0: /* an empty line has no answer */
        break;
    default:
        talux_interpreter_GetError(error, sizeof error);
        printf("%s\n", error);
    }
}

int main(void) {
    char line[300];
    talux_interpreter_Init();
    while (fgets(line, sizeof line, stdin) != NULL) {
        line[strcspn(line, "\n")] = '\0';
        evaluate(line);
    }
    return 0;
}
