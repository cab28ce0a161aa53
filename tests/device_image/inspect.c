/*
 * Another program of the device: it knows the keys, the sizes and the offsets of the segments and nothing
 * else of the library. Writes the segments as they are to DIR, and with a second argument looks for the
 * values that the workload left at known places.
 *
 *   inspect DIR [check]
 */
#include <stdio.h>
#include <string.h>
#include <sys/shm.h>

enum { STRUCTS, GLOBAL, TEMP };
enum { FLOAT, DOUBLE, LONG, SHORT, BYTE, TEXT };

static const struct {
    key_t key;
    size_t size;
    const char* name;
} segments[] = {{5675, 588, "struct"}, {5678, 19500, "global"}, {5679, 19500, "temp"}};

static const struct {
    int segment, offset, kind;
    double number;
    const char* text;
} landmarks[] = {
    {TEMP, 0, FLOAT, -1.5, NULL},
    {GLOBAL, 1244, FLOAT, 0.1F, NULL},
    {TEMP, 1248, DOUBLE, -0.1, NULL},
    {GLOBAL, 4312, DOUBLE, 1e300, NULL},
    {GLOBAL, 4696, LONG, -2, NULL},
    {GLOBAL, 4700, LONG, 2147483647.0, NULL},
    {GLOBAL, 4704, LONG, -2147483648.0, NULL},
    {TEMP, 9392, LONG, 123456789, NULL},
    {GLOBAL, 8320, LONG, 70000, NULL},
    {GLOBAL, 9396, SHORT, 4464, NULL},
    {GLOBAL, 9408, SHORT, -32768, NULL},
    {TEMP, 9600, BYTE, 200, NULL},
    {TEMP, 9601, TEXT, 0, "Station \xC4\xD6"},
    {GLOBAL, 9601, TEXT, 0, "Station \xC4\xD6"},
    {GLOBAL, 18305, TEXT, 0, "last text slot"},
    {TEMP, 18443, SHORT, 259, NULL},
    {GLOBAL, 18443, SHORT, 259, NULL},
    {GLOBAL, 18693, SHORT, -1, NULL},
    {GLOBAL, 18695, TEXT, 0, "2031-12-24"},
    {GLOBAL, 18710, TEXT, 0, "23:59:58"},
    {GLOBAL, 18720, TEXT, 0, "A:7"},
    {GLOBAL, 19440, TEXT, 0, "10.1.255.254"},
    {GLOBAL, 19480, TEXT, 0, "1.2.3.4"},
    {STRUCTS, 0, LONG, 1000, NULL},
    {STRUCTS, 236, LONG, 1001, NULL},
    {STRUCTS, 352, LONG, 1002, NULL},
};

static double number_at(const unsigned char* place, int kind) {
    float single;
    double twice;
    int whole;
    short half;
    switch (kind) {
    case FLOAT:
        memcpy(&single, place, sizeof single);
        return (double)single;
    case DOUBLE:
        memcpy(&twice, place, sizeof twice);
        return twice;
    case LONG:
        memcpy(&whole, place, sizeof whole);
        return whole;
    case SHORT:
        memcpy(&half, place, sizeof half);
        return half;
    default:
        return *place;
    }
}

static int dump(const char* directory, const char* name, const void* bytes, size_t size) {
    char path[512];
    FILE* file;
    snprintf(path, sizeof path, "%s/%s.bin", directory, name);
    file = fopen(path, "wb");
    if (!file || fwrite(bytes, 1, size, file) != size) return 1;
    return fclose(file);
}

static int check(void* const* spaces) {
    int wrong = 0;
    for (size_t i = 0; i < sizeof landmarks / sizeof landmarks[0]; i++) {
        const unsigned char* place = (const unsigned char*)spaces[landmarks[i].segment] + landmarks[i].offset;
        const char* segment = segments[landmarks[i].segment].name;
        if (landmarks[i].kind == TEXT) {
            if (strcmp((const char*)place, landmarks[i].text) == 0) continue;
            printf("%s %d: '%s' instead of '%s'\n", segment, landmarks[i].offset, (const char*)place,
                   landmarks[i].text);
        } else {
            const double number = number_at(place, landmarks[i].kind);
            if (!(number < landmarks[i].number) && !(number > landmarks[i].number)) continue;
            printf("%s %d: %.17g instead of %.17g\n", segment, landmarks[i].offset, number,
                   landmarks[i].number);
        }
        wrong++;
    }
    return wrong;
}

int main(int argc, char** argv) {
    void* spaces[3];
    if (argc < 2) return 2;
    for (int i = 0; i < 3; i++) {
        const int id = shmget(segments[i].key, segments[i].size, 0);
        struct shmid_ds state;
        spaces[i] = id < 0 ? (void*)-1 : shmat(id, NULL, SHM_RDONLY);
        if (spaces[i] == (void*)-1 || shmctl(id, IPC_STAT, &state) != 0 ||
            dump(argv[1], segments[i].name, spaces[i], segments[i].size) != 0) {
            perror(segments[i].name);
            return 1;
        }
        if (state.shm_segsz != segments[i].size || (state.shm_perm.mode & 0777) != 0666) {
            printf("%s: %lu bytes, mode %o\n", segments[i].name, (unsigned long)state.shm_segsz,
                   (unsigned)state.shm_perm.mode);
            return 1;
        }
    }
    return argc > 2 && check(spaces) ? 1 : 0;
}
