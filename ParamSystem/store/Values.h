// Values of any kind inside the library: a number or a text, and which of the two.
#ifndef TALUX_STORE_VALUES_H
#define TALUX_STORE_VALUES_H

#include <optional>
#include <string_view>

#include "ParamSystem/store/Kinds.h"
#include "support/Text.h"

namespace talux {

class Value {
public:
    explicit Value(double number) : text_(false), number_(number) {}
    // The first 127 characters, as many as the longest slot has.
    explicit Value(std::string_view characters) : text_(true) { copyText(characters_, characters); }

    bool isText() const { return text_; }
    // A program may have given a parameter a type that is not that of its id: the number of a text is 0, the
    // text of a number is empty.
    double number() const { return text_ ? 0 : number_; }
    const char* text() const { return text_ ? characters_ : ""; }

private:
    bool text_;
    union {
        double number_;
        char characters_[kTextSize];
    };
};

// Under the lock of the slot. Ids without a slot have no value, nor do the records.
std::optional<Value> readValue(Space space, int id);

// The same of a number; 0 where there is none.
double readNumber(Space space, int id);

// Under the lock of the slot. A number for a text slot, a text for a number slot and ids without a slot do
// nothing.
void writeValue(Space space, int id, const Value& value);
void writeNumber(Space space, int id, double number);

// What a read returns after `value` was written: cut, rounded or saturated to the slot. Nothing where
// the write would do nothing.
std::optional<Value> storedAs(int id, const Value& value);

// The factory default; nothing for templates, commands and records.
std::optional<Value> defaultOf(const stParamProperties& row);

} // namespace talux

#endif
