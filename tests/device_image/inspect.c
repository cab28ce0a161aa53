/*
 * Another program of the device: it knows the keys and the sizes of the segments and nothing else of the
 * library. Writes the segments as they are to DIR.
 *
 *   inspect DIR
 */
#include <stdio.h>
#include <sys/shm.h>

static const struct {
    key_t key;
    size_t size;
    const char* name;
} segments[] = {{5675, 588, "struct"}, {5678, 19500, "global"}, {5679, 19500, "temp"}};

int main(int argc, char** argv) {
    if (argc < 2) return 2;
    for (size_t i = 0; i < sizeof segments / sizeof segments[0]; i++) {
        char path[512];
        FILE* file;
        const void* space = shmat(shmget(segments[i].key, segments[i].size, 0), NULL, SHM_RDONLY);
        snprintf(path, sizeof path, "%s/%s.bin", argv[1], segments[i].name);
        file = fopen(path, "wb");
        if (space == (void*)-1 || !file || fwrite(space, 1, segments[i].size, file) != segments[i].size ||
            fclose(file) != 0) {
            perror(segments[i].name);
            return 1;
        }
    }
    return 0;
}
