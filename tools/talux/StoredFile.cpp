#include "tools/talux/StoredFile.h"

#include <filesystem>
#include <set>

#include "tools/talux/Judgement.h"

namespace talux::tool {

StoredFile lookAt(const std::string& path, File file, const Context& context) {
    StoredFile found;
    const Parameters saved =
        reference::chosen([file](const Parameter& each) { return each.isSetting() && each.file() == file; });
    const Parameter* const last = *std::ranges::max_element(saved, {}, &Parameter::position); // of a save
    found.expected = static_cast<int>(saved.size());
    const Source before = Source::defaults();
    Judge judge(path, before, context);
    std::set<const Parameter*> seen;
    try {
        readEntries(path, context, [&](const Entry& entry) {
            const Judgement judgement = judge.judge(entry);
            ++found.lines;
            found.findings += static_cast<int>(judgement.findings.size());
            if (judgement.to && judgement.parameter->file() == file) seen.insert(judgement.parameter);
            found.isTorn = found.isTorn || entry.hasNul || entry.form == LineForm::foreign;
        });
    } catch (const CouldNot& error) {
        found.unreadable = error.what();
    }
    found.settings = static_cast<int>(seen.size());
    found.isTorn = found.isTorn || !seen.contains(last);
    return found;
}

std::vector<DatedCopy> copiesOf(File file, const Context& context) {
    const std::string stem = std::string(rowOf(kParameterFiles, file).stem) + "_";
    if (stem == "_") return {};
    std::vector<DatedCopy> copies;
    std::error_code error;
    const std::string folder = context.directory.empty() ? "/" : context.directory;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        const std::string name = entry.path().filename().string();
        if (!name.starts_with(stem) || !name.ends_with(".ini")) continue;
        std::string when = name.substr(stem.size(), name.size() - stem.size() - 4);
        if (when.size() != 17) continue;
        when[4] = when[7] = '-', when[10] = ' ';
        when.insert(15, ":").insert(13, ":");
        copies.push_back({context.directory + "/" + name, std::move(when)});
    }
    std::ranges::sort(copies, std::greater(), &DatedCopy::when);
    return copies;
}

std::optional<std::string> newestWholeCopy(File file, const Context& context, const std::string& until) {
    for (const DatedCopy& copy : copiesOf(file, context)) {
        if (copy.when > until) continue;
        const StoredFile looked = lookAt(copy.path, file, context);
        if (looked.isUsable() && !looked.isTorn) return copy.path;
    }
    return {};
}

} // namespace talux::tool
