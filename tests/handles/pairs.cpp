// Each handle beside what a program would write without it; both have to become the same instructions.
#include <talux/talux.hpp>

// What programs call their own; a parameter of the layer's constructors with such a name would be a warning.
[[maybe_unused]] constexpr int name = 0, text = 1, row = 2, number = 3, first = 4, parts = 5;

namespace {

constexpr talux::Measured<float> u0{"U0_prim"};
constexpr talux::Measured<double> fifth{"vMWR", 5};
constexpr talux::Setting<float> threshold{"Uearth"};
constexpr talux::Setting<talux::choice::Language> language{"Language"};
constexpr talux::Record<talux::MessRecord01> record;

[[maybe_unused]] const talux::Group group("group", u0, fifth.run<2>(), record);
[[maybe_unused]] const talux::Text given("text");

constexpr int kU0 = 2003, kFifth = 1004, kLanguage = 10000;

} // namespace

extern "C" {

float get_handle() {
    return u0.get();
}
float get_plain() {
    float value;
    VarGetGlobalFloatValue(kU0, &value);
    return value;
}

void set_handle(double value) {
    fifth.set(value);
}
void set_plain(double value) {
    VarSetGlobalDoubleValue(kFifth, value);
}

void run_handle(const float* values) {
    u0.set_run(std::span(values, 3));
}
void run_plain(float* values) {
    VarSetGlobalFloatValueArray(kU0, values, 3);
}

bool stage_handle() {
    return !language.stage(talux::choice::Language::kEnglish) || !threshold.stage(95);
}
bool stage_plain() {
    VarSetEnumValue(kLanguage, 2);
    return true;
}

void record_handle(talux::MessRecord01& value) {
    record.set(value);
}
void record_plain(talux::MessRecord01* value) {
    VarSetGlobalStructValue(kFirstStruct, value, 236);
}
}
