#include "tools/talux/Files.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

#include "ParamSystem/files/Replace.h"
#include "tools/Strings.h"

namespace talux::tool {

std::string reasonOf(int error) {
    return std::generic_category().message(error);
}

std::string contentsOf(const std::string& path, const Context& context) {
    constexpr std::size_t kLargest = 1 << 20;
    errno = 0;
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), std::fclose);
    std::string contents(kLargest + 1, '\0');
    const std::size_t size = file ? std::fread(contents.data(), 1, contents.size(), file.get()) : 0;
    const bool isRead = file && std::ferror(file.get()) == 0;
    if (!isRead || size > kLargest)
        context.fail("{}: cannot be read: {}", "{}: lässt sich nicht lesen: {}", path,
                     isRead ? context.say("larger than 1 MB: not a script or plan",
                                          "mehr als 1 MB ist kein Skript oder Plan")
                            : reasonOf(errno));
    contents.resize(size);
    return contents;
}

void replace(const std::string& path, const std::string& text, const Context& context,
             const os::Rights* rights) {
    if (const os::Error error = replaceFile(path.c_str(), text, rights))
        context.fail("{}: cannot be written: {}", "{}: lässt sich nicht schreiben: {}", path,
                     reasonOf(error.number));
}

} // namespace talux::tool
