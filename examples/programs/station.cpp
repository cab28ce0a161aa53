// Reads and changes settings without the command language: renames the station, makes the change live and
// prints what the device's other programs now see.
//
//   station NEW-NAME
#include <ParamSystem/TALUX_Var.h>
#include <src/talux_interpreter.h>

#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    talux_interpreter_Init(); // the dictionary, for the look-ups

    char name[] = "Name";
    const stParamProperties* row = GetParamPropertiesByName(name);
    if (row == nullptr || !VarIsText(row->id)) return 1;

    char text[kTextSize];
    VarGetGlobalTextValue(row->id, text);
    std::printf("%s (id %d) was \"%s\"\n", row->name, row->id, text);

    VarSetTextValue(row->id, argv[1]); // the working copy of the settings
    VarUpdateGlobalSpace();            // the commit makes it live
    VarGetGlobalTextValue(row->id, text);
    std::printf("%s (id %d) is \"%s\"\n", row->name, row->id, text);
    return 0;
}
