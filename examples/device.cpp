// Plays the rest of the device: loads the factory defaults, then measures a three-phase network twenty
// times a second and works with the live value of one setting.
//
//   device [LOGFILE]
//
// Prints "ready" once the first measured values are in the store, and tells the live value of the setting
// whenever it changes, in LOGFILE or on standard output. Ends at SIGTERM or SIGINT.
#include "ParamSystem/TALUX_Params.h"
#include "ParamSystem/TALUX_Var.h"

#include <array>
#include <chrono>
#include <cmath>
#include <complex>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <numbers>
#include <thread>

namespace {

constexpr char kSetting[] = "Uearth";
constexpr int kMessRecord01 = kFirstStruct;
constexpr auto kPeriod = std::chrono::milliseconds(50);

using Phasor = std::complex<double>;

double degrees(const Phasor& phasor) {
    return std::arg(phasor) * 180.0 / std::numbers::pi;
}

// One measured value: where it goes among the parameters and in the record ("" nowhere).
struct Measured {
    const char* parameter;
    const char* member;
    double value;
};

// A network of 20 kV whose voltages, load and frequency drift slowly. Kilovolt and ampere, so powers are
// in kW and kvar; angles in degrees.
struct Network {
    std::array<Phasor, 3> voltage, current;
    double frequency;

    explicit Network(double seconds) : frequency(50.0 + 0.02 * std::sin(seconds / 9.0)) {
        const double lag = 18.0 + 3.0 * std::sin(seconds / 13.0);
        for (int k = 0; k < 3; ++k) {
            const double kilovolt = 20.0 / std::sqrt(3.0) * (1.0 + 0.004 * std::sin(seconds / 7.0 + k));
            const double ampere = 180.0 * (1.0 + 0.1 * std::sin(seconds / 11.0 + 2.0 * k));
            const double angle = -120.0 * k;
            voltage[static_cast<std::size_t>(k)] = std::polar(kilovolt, angle * std::numbers::pi / 180.0);
            current[static_cast<std::size_t>(k)] =
                std::polar(ampere, (angle - lag) * std::numbers::pi / 180.0);
        }
    }
};

constexpr std::size_t kMeasuredCount = 24;

std::array<Measured, kMeasuredCount> measure(const Network& network) {
    const auto& [u1, u2, u3] = network.voltage;
    const auto& [i1, i2, i3] = network.current;
    const Phasor u0 = (u1 + u2 + u3) / 3.0;
    const Phasor i0 = (i1 + i2 + i3) / 3.0;
    const Phasor s1 = u1 * std::conj(i1), s2 = u2 * std::conj(i2), s3 = u3 * std::conj(i3);
    const Phasor s = s1 + s2 + s3;
    return {{
        {"U1_prim", "U1p", std::abs(u1)},
        {"U2_prim", "U2p", std::abs(u2)},
        {"U3_prim", "U3p", std::abs(u3)},
        {"U0_prim", "U0p", std::abs(u0)},
        {"I1_prim", "I1p", std::abs(i1)},
        {"I2_prim", "I2p", std::abs(i2)},
        {"I3_prim", "I3p", std::abs(i3)},
        {"I0_prim", "I0p", std::abs(i0)},
        {"phiUI1", "wUI1", degrees(u1 / i1)},
        {"phiUI2", "wUI2", degrees(u2 / i2)},
        {"phiUI3", "wUI3", degrees(u3 / i3)},
        {"P1_prim", "P1", s1.real()},
        {"P2_prim", "P2", s2.real()},
        {"P3_prim", "P3", s3.real()},
        {"Q1_prim", "Q1", s1.imag()},
        {"Q2_prim", "Q2", s2.imag()},
        {"Q3_prim", "Q3", s3.imag()},
        {"U12_prim", "U12p_a", std::abs(u1 - u2)},
        {"U23_prim", "U23p_a", std::abs(u2 - u3)},
        {"U31_prim", "U31p_a", std::abs(u3 - u1)},
        {"P_prim", "Pg", s.real()},
        {"Q_prim", "Qg", s.imag()},
        {"COSPHI", "cosphi", s.real() / std::abs(s)},
        {"f_grid", "f_grid", network.frequency},
    }};
}

int idOf(const char* name) {
    char text[64];
    std::snprintf(text, sizeof text, "%s", name);
    const stParamProperties* row = GetParamPropertiesByName(text);
    return row ? row->id : 0;
}

// Byte offset of a member in MessRecord01, -1 when there is none.
VarLong offsetOf(const char* name) {
    const VarLong first = ARR_MemberOffset[0];
    for (VarLong i = first; i < first + ARR_MemberCount[0]; ++i) {
        const StructMemberProperties_t& member = ARR_StructMemberProperties[i];
        if (std::strcmp(member.aszMemberName, name) == 0) return member.lMemberOffset;
    }
    return -1;
}

// Where the measured values go, looked up once.
struct Places {
    std::array<int, kMeasuredCount> ids{};
    std::array<VarLong, kMeasuredCount> offsets{};
    VarLong timeStamp = offsetOf("TimeStamp");
    VarLong count = offsetOf("Cnt");

    bool find() {
        const auto values = measure(Network(0.0));
        for (std::size_t i = 0; i < values.size(); ++i) {
            ids[i] = idOf(values[i].parameter);
            offsets[i] = offsetOf(values[i].member);
            if (!VarIsFloat(ids[i]) || offsets[i] < 0) {
                std::fprintf(stderr, "device: no place for %s\n", values[i].parameter);
                return false;
            }
        }
        return timeStamp >= 0 && count >= 0;
    }
};

template <typename T>
void put(char* record, VarLong offset, T value) {
    std::memcpy(record + offset, &value, sizeof value);
}

void publish(const Places& places, double seconds, std::int32_t cycle) {
    const auto values = measure(Network(seconds));
    char record[kLargestRecord] = {};
    put(record, places.timeStamp, static_cast<std::int32_t>(std::time(nullptr)));
    put(record, places.count, cycle);
    for (std::size_t i = 0; i < values.size(); ++i) {
        const float value = static_cast<float>(values[i].value);
        VarSetGlobalFloatValue(places.ids[i], value);
        put(record, places.offsets[i], value);
    }
    VarSetGlobalStructValue(kMessRecord01, record, ARR_StructSize[0]);
}

// Tells the live value of the setting when it is another one than last time.
void watchSetting(int id, double& last, std::FILE* log) {
    double live = 0.0;
    VarGetGlobalValue(id, &live);
    if (live == last) return;
    last = live;
    std::fprintf(log, "%s is %g now\n", kSetting, live);
    std::fflush(log);
}

volatile std::sig_atomic_t stopRequested = 0;
void requestStop(int) {
    stopRequested = 1;
}

void work(const Places& places, std::FILE* log) {
    const auto start = std::chrono::steady_clock::now();
    const int setting = idOf(kSetting);
    double last = std::nan("");
    for (std::int32_t cycle = 1; !stopRequested; ++cycle) {
        watchSetting(setting, last, log);
        const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
        publish(places, elapsed.count(), cycle);
        if (cycle == 1) {
            std::puts("ready");
            std::fflush(stdout);
        }
        std::this_thread::sleep_for(kPeriod);
    }
}

} // namespace

int main(int argc, char** argv) {
    std::signal(SIGTERM, requestStop);
    std::signal(SIGINT, requestStop);
    std::FILE* log = argc > 1 ? std::fopen(argv[1], "w") : stdout;
    if (!log) {
        std::perror(argv[1]);
        return 1;
    }
    LoadDefParamProperties();
    VarSetDefault();
    VarUpdateGlobalSpace();
    Places places;
    if (!places.find()) return 1;
    work(places, log);
}
