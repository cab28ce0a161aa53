// Random postfix lines against a small evaluator; how results print, and their types.
#include "KeplLine.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <random>

using namespace talux_test;
using KeplExpression = KeplTest;

namespace {

constexpr double kPi = 3.141592653589793;

// The promotion chain from the highest to the lowest, then codes outside of it.
constexpr int kTypes[] = {2002, 2003, 2004, 2008, 2009, 2010, 0, 2005, 2006, 2007, 2011, 2012, 2024};

int resultType(int left, int right) {
    const auto* const end = kTypes + 6;
    for (const int type : kTypes)
        if (type == left || type == right) return std::find(kTypes, end, left) == end ? left : type;
    return left;
}

struct Value {
    double number;
    int type;
};

const std::string kBinary[] = {"+", "-", "*", "/"};
const std::string kUnary[] = {"sin", "cos", "tan", "deg", "rad", "sqr", "sqrt"};

// Operands: literals, and parameters of the types float, long, int, bool and enum.
const struct {
    std::string term;
    Value value;
} kOperands[] = {{"2", {2, 2002}},
                 {"-0.75", {-0.75, 2002}},
                 {" 1e3", {1000, 2002}},
                 {"0", {0, 2002}},
                 {"TLX_U1_prim", {12.5, 2003}},
                 {"LVR_MW_start", {-7, 2004}},
                 {"tlx_EvCnt_qu2", {3, 2008}},
                 {"TLX_Firewall_dis", {1, 2010}},
                 {"TLX_Language", {2, 2012}}};

// What is left of a line: the printed top of the stack, or the error.
struct Model {
    std::vector<Value> stack;
    std::string error;

    Value pop() {
        const Value top = stack.back();
        stack.pop_back();
        return top;
    }

    void binary(std::size_t which) {
        if (stack.size() < 2) return fail(kSyntax);
        const Value r = pop(), l = pop();
        if (which == 3 && r.number == 0) return fail("Division durch 0");
        const double results[] = {l.number + r.number, l.number - r.number, l.number * r.number,
                                  l.number / r.number};
        stack.push_back({results[which], resultType(l.type, r.type)});
    }

    void unary(std::size_t which) {
        if (stack.empty()) return fail(kSyntax);
        const double x = pop().number;
        if (which == 6 && x < 0) return fail("Quadratwurzel von negativen Werten nicht erlaubt");
        const double results[] = {std::sin(x),     std::cos(x), std::tan(x), x / kPi * 180.0,
                                  x / 180.0 * kPi, x * x,       std::sqrt(x)};
        stack.push_back({results[which], 2002});
    }

    void fail(const std::string& text) { error = text; }

    std::string print() const {
        const int type = stack.back().type;
        const bool whole = type != 2002 && type != 2003 && type != 2012;
        char text[400];
        std::snprintf(text, sizeof text, "%.*f", whole ? 0 : 6, stack.back().number);
        return text;
    }
};

} // namespace

TEST_F(KeplExpression, MatchesTheModel) {
    line("TLX_U1_prim=12.5,TLX_MW_start=-7,TLX_EvCnt_qu2=3,TLX_Language=2");
    std::mt19937 random(5);
    const auto any = [&](const auto& list) { return random() % std::size(list); };
    for (int round = 0; round < 20000; ++round) {
        Model model;
        std::string text;
        while (text.empty() || (text.size() < 200 && random() % 16 != 0 && model.error.empty())) {
            const std::size_t binary = any(kBinary), unary = any(kUnary), operand = any(kOperands);
            const auto kind = random() % 5; // a function, an operator twice as often, else a value
            if (kind == 0)
                model.unary(unary);
            else if (kind < 3)
                model.binary(binary);
            else
                model.stack.push_back(kOperands[operand].value);
            text += (kind == 0 ? kUnary[unary] : kind < 3 ? kBinary[binary] : kOperands[operand].term) + ",";
        }
        const Outcome expected = model.error.empty() ? done(model.print()) : failed(model.error);
        ASSERT_EQ(line(text), expected) << text;
    }
}

TEST_F(KeplExpression, PromotesAlongTheChainOnly) {
    for (const int left : kTypes)
        for (const int right : kTypes)
            EXPECT_EQ(interpreter.GetNewValType(left, right), resultType(left, right))
                << left << " " << right;
}

// Doubles of every size, and those around the middle between two texts, print as printf has them.
TEST_F(KeplExpression, PrintsLikePrintf) {
    const int element = GetParamPropertiesByName(const_cast<char*>("vMWR"))->id;
    const int dividend = GetParamPropertiesByName(const_cast<char*>("MW_start"))->id;
    const int divisor = GetParamPropertiesByName(const_cast<char*>("rec_start"))->id;
    std::mt19937_64 random(23);
    char text[kKeplTextSize], expected[400];
    for (int round = 0; round < 250000; ++round) {
        const std::uint64_t bits = random();
        const auto whole = static_cast<double>(static_cast<std::int64_t>(bits) >> bits % 61);
        const double candidates[] = {std::bit_cast<double>(bits),
                                     std::ldexp(whole, -static_cast<int>(random() % 90)), (whole + 0.5) / 1e6,
                                     (2 * whole + 1) / 128};
        double value = candidates[random() % 4];
        if (random() % 2 == 0) value = std::nextafter(value, static_cast<double>(random() % 2));
        VarSetGlobalDoubleValue(element, value);
        int iSP = 0, type = 0;
        interpreter.ProcessCommand("vMWR 1", text, &value, &type, &iSP, 3);
        std::snprintf(expected, sizeof expected, "%f\n", value);
        ASSERT_STREQ(text, expected) << value;
        if (round % 8 != 0) continue;

        const auto numerator = static_cast<std::int32_t>(bits), denominator = 1 << round % 11;
        VarSetGlobalLongValue(dividend, numerator);
        VarSetGlobalLongValue(divisor, denominator);
        std::snprintf(expected, sizeof expected, "%.0f", 1.0 * numerator / denominator);
        ASSERT_EQ(line("TLX_MW_start,TLX_rec_start,/"), done(expected)) << numerator << " " << denominator;
    }
}
