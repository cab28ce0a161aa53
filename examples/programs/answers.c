/*
 * Evaluates the lines given as arguments and prints the answers. Output of shell terms appears as it comes.
 *
 *   answers '1,2,+' TLX_Name
 */
#include <src/talux_interpreter.h>
#include <stdio.h>
#include <string.h>

static void print_chunk(char* buffer, int buffered) {
    (void)buffered;
    fputs(buffer, stdout);
}

int main(int argc, char** argv) {
    int failed = 0;
    talux_interpreter_Init();
    for (int i = 1; i < argc; i++) {
        char line[255], answer[TALUX_ANSWER_SIZE], newline[] = "\n";
        if (strlen(argv[i]) >= sizeof line) {
            fprintf(stderr, "a line has at most 254 characters\n");
            return 2;
        }
        strcpy(line, argv[i]);
        answer[0] = '\0';
        if (talux_interpreter_ProcessLine(line, print_chunk, answer, newline) < 0) {
            talux_interpreter_GetError(answer, 128);
            failed = 1;
            fprintf(stderr, "%s\n", answer);
        } else {
            fputs(answer, stdout);
        }
    }
    return failed;
}
