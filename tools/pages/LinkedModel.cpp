// The model of the rows, for what is printed besides the tables. The generator has found no fault in them
// before.
#include <cstdlib>

#include "tools/generator/Data.h"
#include "tools/generator/Generator.h"
#include "tools/reference/Reference.h"

const talux::model::Model& talux::reference::model() {
    static const auto owned = [] {
        generator::Faults faults;
        auto made = generator::makeModel(generator::familyData(), faults);
        print(faults, stderr);
        if (!made) std::exit(1);
        return std::move(*made);
    }();
    static const model::Model view = owned.view();
    return view;
}
