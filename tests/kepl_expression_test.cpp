// Random postfix lines against a small evaluator, and the types of results.
#include "KeplLine.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

using namespace talux_test;
using KeplExpression = KeplTest;

namespace {

constexpr double kPi = 3.141592653589793;

// From the highest to the lowest.
constexpr int kChain[] = {2002, 2003, 2004, 2008, 2009, 2010};
constexpr int kOutside[] = {0, 2005, 2006, 2007, 2011, 2012, 2024};

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
} kOperands[] = {
    {"2", {2, 2002}},
    {"-0.75", {-0.75, 2002}},
    {" 1e3", {1000, 2002}},
    {"0", {0, 2002}},
    {"TLX_U1_prim", {12.5, 2003}},
    {"LVR_MW_start", {-7, 2004}},
    {"tlx_EvCnt_qu2", {3, 2008}},
    {"TLX_Firewall_dis", {1, 2010}},
    {"TLX_Language", {2, 2012}},
};

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
        if (stack.size() < 2) return fail("<< SYNTAX ERROR >>");
        const Value r = pop(), l = pop();
        if (which == 3 && r.number == 0) return fail("Division durch 0");
        const double results[] = {l.number + r.number, l.number - r.number, l.number * r.number,
                                  l.number / r.number};
        stack.push_back({results[which], resultType(l.type, r.type)});
    }

    void unary(std::size_t which) {
        if (stack.empty()) return fail("<< SYNTAX ERROR >>");
        const double x = pop().number;
        if (which == 6 && x < 0) return fail("Quadratwurzel von negativen Werten nicht erlaubt");
        const double results[] = {std::sin(x),     std::cos(x), std::tan(x), x / kPi * 180.0,
                                  x / 180.0 * kPi, x * x,       std::sqrt(x)};
        stack.push_back({results[which], 2002});
    }

    void fail(const std::string& text) { error = text; }

    static int resultType(int left, int right) {
        for (const int type : kChain) {
            if (type == left) return left;
            if (type == right) return std::ranges::count(kChain, left) > 0 ? right : left;
        }
        return left;
    }

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
        while (text.size() < 200 && random() % 16 != 0 && model.error.empty()) {
            const std::size_t binary = any(kBinary), unary = any(kUnary), operand = any(kOperands);
            switch (random() % 5) {
            case 0:
                text += kUnary[unary];
                model.unary(unary);
                break;
            case 1:
            case 2:
                text += kBinary[binary];
                model.binary(binary);
                break;
            default:
                text += kOperands[operand].term;
                model.stack.push_back(kOperands[operand].value);
            }
            text += ",";
        }
        if (text.empty()) continue;
        const Outcome expected = model.error.empty() ? done(model.print()) : failed(model.error);
        ASSERT_EQ(line(text), expected) << text;
    }
}

TEST_F(KeplExpression, PromotesAlongTheChainOnly) {
    const int table[6][6] = {
        {2002, 2002, 2002, 2002, 2002, 2002}, {2002, 2003, 2003, 2003, 2003, 2003},
        {2002, 2003, 2004, 2004, 2004, 2004}, {2002, 2003, 2004, 2008, 2008, 2008},
        {2002, 2003, 2004, 2008, 2009, 2009}, {2002, 2003, 2004, 2008, 2009, 2010},
    };
    for (int row = 0; row < 6; ++row)
        for (int column = 0; column < 6; ++column)
            EXPECT_EQ(interpreter.GetNewValType(kChain[row], kChain[column]), table[row][column]);
    for (const int outside : kOutside)
        for (const int inside : kChain) {
            EXPECT_EQ(interpreter.GetNewValType(outside, inside), outside);
            EXPECT_EQ(interpreter.GetNewValType(inside, outside), inside);
        }
}
