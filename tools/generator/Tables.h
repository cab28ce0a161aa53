// What is printed from the model while the module is built.
#ifndef TALUX_GENERATOR_TABLES_H
#define TALUX_GENERATOR_TABLES_H

#include <map>
#include <string>

#include "tools/generator/Model.h"

namespace talux::generator {

// Content by the name of the file below the folder of generated sources.
using Sources = std::map<std::string, std::string>;

void addModuleTables(Sources& sources, const model::Model& model);
void addModelTable(Sources& sources, const model::Model& model); // of the program talux
void addLuaTables(Sources& sources, const model::Model& model);
void addHeaders(Sources& sources, const model::Model& model); // of C++ programs
void addCsvTable(Sources& sources, const model::Model& model);

} // namespace talux::generator

#endif
