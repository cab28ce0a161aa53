// Broken rules and how they are reported.
#ifndef TALUX_GENERATOR_FAULTS_H
#define TALUX_GENERATOR_FAULTS_H

#include <cstdio>
#include <string>
#include <vector>

#include "ParamSystem/dictionary/SourceLine.h"

namespace talux::generator {

struct Fault {
    SourceLine where;    // the row, if there is one
    std::string subject; // its name
    std::string rule;
};

using Faults = std::vector<Fault>;

// "ParamSystem/parameters/Network.h:17", as seen from the root of the project.
std::string fileAndLine(const SourceLine& where);

// One line per fault, five lines at most.
void print(const Faults& faults, std::FILE* out);

} // namespace talux::generator

#endif
