#include "tools/desk/Plot.h"

#include <algorithm>
#include <cmath>

#include "talux/about.hpp"
#include "tools/Strings.h"

namespace desk {

namespace {

constexpr double kLeft = 110, kWidth = 820, kCurveHeight = 110, kRowHeight = 18, kGap = 34;
constexpr std::size_t kFirstSignal = 16; // the functions before it are states that are nearly always on

constexpr char kStyle[] =
    R"(<style>
 text { font: 12px "DejaVu Sans", system-ui, sans-serif; fill: #1b1f24; }
 .axis { stroke: #8c959f; fill: none; } .voltage { stroke: #0969da; } .current { stroke: #bc4c00; }
 .voltage, .current { fill: none; stroke-width: 1.5; } .signal { fill: #2da44e; }
 @media (prefers-color-scheme: dark) { text { fill: #e6edf3; } .axis { stroke: #656c76; }
  .voltage { stroke: #58a6ff; } .current { stroke: #f0883e; } .signal { fill: #3fb950; } }
</style>
)";

} // namespace

void Plot::add(const Cycle& cycle) {
    points.push_back({cycle.second, cycle.record.U0p, cycle.record.I0p});
    for (std::size_t number = kFirstSignal; number <= kFunctions; ++number) {
        if (!cycle.outputs.functions[number]) continue;
        auto& spans = signals[number];
        const bool goesOn = !spans.empty() && spans.back().second > cycle.second - kCycle / 2;
        if (!goesOn) spans.push_back({cycle.second, cycle.second});
        spans.back().second = cycle.second + kCycle;
    }
}

double Plot::x(double second) const {
    return kLeft + kWidth * second / end();
}

// Points that are close to the last one are left out.
void Plot::addCurve(std::string& svg, double top, double Point::*value, const char* name, const char* unit,
                    const char* style) const {
    double max = 1e-3;
    for (const Point& point : points)
        max = std::max(max, point.*value);
    svg += talux::formatted("<text x=\"10\" y=\"%.0f\">%s %.3g %s</text>\n", top + 12, name, max, unit);
    svg += talux::formatted("<path class=\"axis\" d=\"M%.1f,%.1f v%.1f h%.1f\"/>\n<path class=\"%s\" d=\"",
                            kLeft, top, kCurveHeight, kWidth, style);
    double last = -1, lastX = -1;
    for (const Point& point : points) {
        const double y = top + kCurveHeight * (1 - point.*value / max);
        const double distance = std::fabs(y - last);
        const bool isNear = distance < 0.5 || (distance < 4 && x(point.second) - lastX < 2);
        if (last >= 0 && isNear && &point != &points.back()) continue;
        if (last >= 0) svg += talux::formatted("L%.1f,%.1f", x(point.second), last);
        lastX = x(point.second);
        svg += talux::formatted("%s%.1f,%.1f", last < 0 ? "M" : "L", lastX, y);
        last = y;
    }
    svg += "\"/>\n";
}

std::string Plot::svg(const std::string& title) const {
    static constexpr talux::Setting<talux::choice::BAassign> kFunction{"BAassign1"};
    const double height =
        40 + 2 * (kCurveHeight + kGap) + kRowHeight * static_cast<double>(signals.size()) + 30;
    std::string svg;
    svg += talux::formatted(
        "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 960 %.0f\" role=\"img\">\n<title>", height);
    svg += talux::inMarkup(title) + "</title>\n" + kStyle;
    double top = 30;
    addCurve(svg, top, &Point::voltage, "U0", "kV", "voltage");
    top += kCurveHeight + kGap;
    addCurve(svg, top, &Point::current, "I0", "A", "current");
    top += kCurveHeight + kGap;
    for (const auto& [function, spans] : signals) {
        svg += talux::formatted("<text x=\"10\" y=\"%.1f\">", top + 12);
        svg += talux::inMarkup(talux::About(kFunction).choice(static_cast<int>(function))) + "</text>\n";
        for (const auto& [from, to] : spans)
            svg += talux::formatted(
                "<rect class=\"signal\" x=\"%.1f\" y=\"%.1f\" width=\"%.1f\" height=\"12\"/>\n", x(from),
                top + 2, std::max(x(to) - x(from), 1.0));
        top += kRowHeight;
    }
    const double step = end() > 30 ? 10 : end() > 10 ? 2 : 1;
    for (double second = 0; second <= end() + kCycle / 2; second += step)
        svg += talux::formatted("<text x=\"%.1f\" y=\"%.1f\">%g s</text>\n", x(second), top + 18, second);
    return svg + "</svg>\n";
}

} // namespace desk
