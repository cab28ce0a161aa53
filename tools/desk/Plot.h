// A scenario as a picture: U0, I0 and the output functions that signal, over time.
#ifndef TALUX_DESK_PLOT_H
#define TALUX_DESK_PLOT_H

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "tools/desk/Desk.h"

namespace desk {

class Plot {
public:
    void add(const Cycle& cycle);

    // An SVG for light and dark, with text that can be searched; the dictionary has to be loaded.
    [[nodiscard]] std::string svg(const std::string& title) const;

private:
    struct Point {
        double second, voltage, current;
    };
    using Span = std::pair<double, double>; // from, to
    std::vector<Point> points;
    std::map<std::size_t, std::vector<Span>> signals; // by output function

    [[nodiscard]] double end() const { return points.empty() ? 1 : points.back().second + kCycle; }
    [[nodiscard]] double x(double second) const;
    void addCurve(std::string& svg, double top, double Point::*value, const char* name, const char* unit,
                  const char* style) const;
};

} // namespace desk

#endif
