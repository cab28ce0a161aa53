// JSON documents. The header of nlohmann's library, which does the work, costs
// seconds in each source that reads it: only Json.cpp does.
#ifndef TALUX_TOOLS_JSON_H
#define TALUX_TOOLS_JSON_H

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>

#include <nlohmann/json_fwd.hpp>

namespace talux::tool {

class Json {
public:
    struct Member;

    Json() : Json(nullptr) {}
    Json(std::nullptr_t);
    Json(bool truth);
    Json(int number) : Json(std::int64_t{number}) {}
    Json(std::int64_t number);
    Json(double number);
    Json(std::string_view text);
    Json(const std::string& text) : Json(std::string_view(text)) {}
    Json(const char* text) : Json(std::string_view(text)) {}
    Json(std::initializer_list<Member> members); // in this order

    static Json array();
    // What `make` makes of the items.
    template <class Items, class Make = std::identity>
    static Json arrayOf(Items&& items, Make make = {}) {
        Json all = array();
        for (const auto& item : items)
            all.add(make(item));
        return all;
    }

    Json(Json&&) noexcept;
    Json& operator=(Json&&) noexcept;
    ~Json();

    bool isEmpty() const; // null or an empty text

    // Make an array and an object of null.
    void add(Json element);
    void set(std::string_view key, Json value);

    // Over several lines; texts that are no UTF-8 get replacement characters.
    std::string text() const;
    std::string line() const; // without any blank
    // The same of an object, but each element of an array in it on a line.
    std::string lines() const;

private:
    std::unique_ptr<nlohmann::ordered_json> value;
};

struct Json::Member {
    std::string_view key;
    mutable Json value; // the object takes it out of its initialiser
};

} // namespace talux::tool

#endif
