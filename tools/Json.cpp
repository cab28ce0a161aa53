#include "tools/Json.h"

#include <nlohmann/json.hpp>

#include "tools/Strings.h"

namespace talux::tool {

using Value = nlohmann::ordered_json;

Json::Json(std::nullptr_t) : value(std::make_unique<Value>()) {}
Json::Json(bool truth) : value(std::make_unique<Value>(truth)) {}
Json::Json(std::int64_t number) : value(std::make_unique<Value>(number)) {}
Json::Json(double number) : value(std::make_unique<Value>(number)) {}
Json::Json(std::string_view text) : value(std::make_unique<Value>(text)) {}

Json::Json(std::initializer_list<Member> members) : value(std::make_unique<Value>(Value::object())) {
    for (const Member& member : members)
        set(member.key, std::move(member.value));
}

Json Json::array() {
    Json list;
    *list.value = Value::array();
    return list;
}

Json::Json(Json&&) noexcept = default;
Json& Json::operator=(Json&&) noexcept = default;
Json::~Json() = default;

bool Json::isEmpty() const {
    return value->is_null() || *value == "";
}

void Json::add(Json element) {
    value->push_back(std::move(*element.value));
}

void Json::set(std::string_view key, Json member) {
    (*value)[std::string(key)] = std::move(*member.value);
}

std::string Json::text() const {
    return value->dump(2, ' ', false, Value::error_handler_t::replace) + "\n";
}

std::string Json::line() const {
    return value->dump();
}

std::string Json::lines() const {
    const auto print = [](const Value& element) { return element.dump(); };
    return "{" +
           list(value->items(), ",",
                [&](const auto& member) {
                    const std::string text = member.value().is_array()
                                                 ? "[" + list(member.value(), ",\n", print) + "]"
                                                 : print(member.value());
                    return print(member.key()) + ":" + text;
                }) +
           "}";
}

} // namespace talux::tool
