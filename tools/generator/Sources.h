// Texts and numbers of C++ sources.
#ifndef TALUX_GENERATOR_SOURCES_H
#define TALUX_GENERATOR_SOURCES_H

#include <charconv>
#include <map>
#include <string>
#include <string_view>

namespace talux::generator {

inline constexpr std::string_view kHead = "// Made by tools/generator from ParamSystem/parameters.\n";

// The texts of a source, each once, one after the other with its NUL. A row refers to its offset: p + 17.
class Pool {
public:
    explicit Pool(std::string_view ownName = "p") : name(ownName) {}

    std::string place(std::string_view text) {
        const auto [met, isNew] = places.emplace(text, size);
        if (isNew) {
            size += text.size() + 1;
            append(text);
        }
        return name + '+' + std::to_string(met->second);
    }

    // As a std::string_view.
    std::string view(std::string_view text) {
        return text.empty() ? "{}" : '{' + place(text) + ',' + std::to_string(text.size()) + '}';
    }

    std::string definition() const { return "static const char " + name + "[] =\n" + literals + ";\n"; }

private:
    void append(std::string_view text) {
        literals += '"';
        for (const char c : text) {
            if (c == '"' || c == '\\') literals += '\\';
            literals += c == '\n' ? std::string("\\n") : std::string(1, c);
        }
        literals += "\\0\"\n";
    }

    std::string name;
    std::map<std::string, std::size_t, std::less<>> places;
    std::size_t size = 0;
    std::string literals;
};

// The shortest text that is read as the same number.
inline std::string number(double value) {
    char text[32];
    return {text, std::to_chars(std::begin(text), std::end(text), value).ptr};
}

inline std::string number(int value) {
    return std::to_string(value);
}

template <class... Fields>
std::string row(const Fields&... fields) {
    std::string text = "{";
    ((text += fields, text += ','), ...);
    text.back() = '}';
    return text + ",\n";
}

} // namespace talux::generator

#endif
