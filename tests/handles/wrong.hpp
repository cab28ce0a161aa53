// What must not compile. After each: what the compiler must print besides its line.
#include <talux/talux.hpp>

using namespace talux;

constexpr Measured<float> case1{"U0_prin"};            // did_you_mean_U0_prim
constexpr Measured<float> case2{"u0_PRIM"};            // did_you_mean_U0_prim
constexpr Measured<double> case3{"U0_prim"};           // its_values_are_float
constexpr Measured<short> case4{"channel"};            // its_values_are_std_int32_t
constexpr Measured<float> case5{"Uearth"};             // it_is_a_setting_take_talux_Setting
constexpr Setting<float> case6{"U0_prim"};             // it_is_measured_take_talux_Measured
constexpr Status<Text> case6b{"Name"};                 // it_is_a_setting_take_talux_Setting
constexpr Measured<double> case7{"vMWR", 97};          // the_index_is_outside_its_range
constexpr Measured<double> case8{"vMWR", 0};           // the_index_is_outside_its_range
constexpr Measured<float> case9{"U0_prim", 1};         // it_has_no_index
constexpr Setting<Choice> case10{"qui_active"};        // its_values_are_bool
constexpr Setting<choice::Parity> case11{"Baudrate1"}; // its_choices_have_another_enum
constexpr Setting<Text> case12{"ETH0_IP"};             // its_values_are_talux_Address
constexpr Setting<Text> case13{"Date"};                // it_is_the_clock_of_the_system
constexpr Measured<float> case14{"VarSaveParams"};     // it_is_a_command_without_a_value
constexpr Measured<float> case15{"MessRecord01"};      // it_is_a_record_take_talux_Record

constexpr Measured<double> word{"vMWR"};
constexpr Measured<float> last{"mw_BE_AC_2"};
constexpr Setting<float> threshold{"Uearth"};
constexpr Setting<Text> name{"Name"};
constexpr auto case16 = word.at(97);                              // the_index_is_outside_its_range
constexpr auto case17 = last.run<3>();                            // the_run_is_too_long
constexpr auto case18 = threshold.valid(0.5);                     // the_value_is_outside_its_range
const std::string_view case19 = name.live();                      // deleted
const auto case20 = word.at<97>().get();                          // the_index_is_outside_its_range
constexpr Series<choice::BAassign> case21{"BAasign"};             // did_you_mean_BAassign1
constexpr Setting<Text> case22{"TLX_script_timoutcomaster"};      // did_you_mean_script_timeout_conmaster
constexpr Setting<Text> case23{"a name that none is similar to"}; // no_parameter_has_this_name
