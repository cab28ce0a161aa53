#include "tools/talux/Files.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

#include "ParamSystem/files/Replace.h"
#include "tools/Strings.h"

namespace talux::tool {

namespace {

constexpr std::size_t kLargest = 1 << 20;

[[noreturn]] void cannotRead(const std::string& path, const std::string& reason, const Context& context) {
    throw CouldNot(
        fill(context.say("{}: cannot be read: {}", "{}: lässt sich nicht lesen: {}"), {path, reason}));
}

} // namespace

std::string contentsOf(const std::string& path, const Context& context) {
    errno = 0;
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), std::fclose);
    std::string contents(kLargest + 1, '\0');
    const std::size_t size = file ? std::fread(contents.data(), 1, contents.size(), file.get()) : 0;
    if (!file || std::ferror(file.get()) != 0)
        cannotRead(path, std::generic_category().message(errno), context);
    if (size > kLargest)
        cannotRead(
            path,
            context.say("larger than 1 MB: not a script or plan", "mehr als 1 MB ist kein Skript oder Plan"),
            context);
    contents.resize(size);
    return contents;
}

void replace(const std::string& path, const std::string& text, const Context& context,
             const os::Rights* rights) {
    const os::Error error = replaceFile(path.c_str(), text, rights);
    if (!error) return;
    throw CouldNot(fill(context.say("{}: cannot be written: {}", "{}: lässt sich nicht schreiben: {}"),
                        {path, std::generic_category().message(error.number)}));
}

} // namespace talux::tool
