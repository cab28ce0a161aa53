"""Prints how many lines and branches were run, and where a condition was never true (T) or never false (F).

coverage.py BRANCHES.json LINES.info: two exports of llvm-cov. A template counts once, whatever its arguments. A
condition that the compiler decides (`if constexpr`) was never evaluated although its line was run: it is no branch.
The lines of `constexpr` functions that no program calls, only the compiler, are counted apart.
"""
import collections
import json
import posixpath
import re
import sys

# The rows of parameters become tables while building.
PARTS = ("module", "support/ MenuSystem/ ParamSystem/ src/"), ("layers", "talux/"), ("talux", "tools/talux/"), \
    ("desk", "tools/desk/")


def inside(path):
    """The path of a source below the project, whether or not a compiler cache shortened it."""
    return posixpath.normpath(path).removeprefix("build-coverage/")


def branches_in(path):
    """File -> place (line, column, ..) -> how often true, how often false."""
    found = collections.defaultdict(dict)
    with open(path, encoding="utf-8") as export:
        for file in json.load(export)["data"][0]["files"]:
            places = found[inside(file["filename"])]
            for *place, true, false in (branch[:6] for branch in file.get("branches", [])):
                before = places.get(tuple(place), (0, 0))
                places[tuple(place)] = before[0] + true, before[1] + false
    return found


def lines_in(path):
    """File -> line -> how often; file -> first lines of functions."""
    found, functions = collections.defaultdict(dict), collections.defaultdict(set)
    with open(path, encoding="utf-8") as export:
        for key, _, value in (row.rstrip().partition(":") for row in export):
            if key == "SF":
                file = inside(value)
            elif key == "FN":
                functions[file].add(int(value.split(",")[0]))
            elif key == "DA":
                line, count = map(int, value.split(",")[:2])
                found[file][line] = found[file].get(line, 0) + count
    return found, functions


def take_out_constant(file, counts, starts):
    """Takes the lines of functions out that only the compiler has called; returns how many."""
    with open(file, encoding="utf-8") as source:
        text = source.read().splitlines()
    taken = 0
    for start in starts:
        if counts.get(start) != 0 or not re.search(r"\b(constexpr|consteval)\b", text[start - 1]):
            continue
        end = min((line for line in counts if line > start and (counts[line] or line in starts)), default=len(text) + 1)
        for line in [line for line in counts if start <= line < end]:
            del counts[line]
            taken += 1
    return taken


def percent(part, whole):
    return f"{part} of {whole}, {100 * part / max(whole, 1):.1f} %"


def gaps(lines, branches):
    """The conditions and lines of a file that were never run, as words; its counts of branches."""
    words, hit, missed = [], 0, 0
    for (line, column, *_), (true, false) in sorted(branches.items()):
        if true or false or not lines.get(line):
            hit, missed = hit + (true > 0) + (false > 0), missed + (not true) + (not false)
            if not true or not false:
                words.append(f"{line}:{column}{'' if true else 'T'}{'' if false else 'F'}")
    never = ",".join(str(line) for line, count in sorted(lines.items()) if not count)
    return words + (["lines", never] if never else []), hit, hit + missed


branches, (lines, functions) = branches_in(sys.argv[1]), lines_in(sys.argv[2])
for name, folders in PARTS:
    files = [file for file in sorted(lines)
             if file.startswith(tuple(folders.split())) and not file.startswith("ParamSystem/parameters/")]
    taken = ways = constant = 0
    for file in files:
        constant += take_out_constant(file, lines[file], functions[file])
        words, hit, all_ways = gaps(lines[file], branches[file])
        taken, ways = taken + hit, ways + all_ways
        if words:
            print(f"  {file}", *words)
    counts = [count for file in files for count in lines[file].values()]
    print(f"{name}: lines {percent(sum(count > 0 for count in counts), len(counts))}; branches {percent(taken, ways)}"
          + (f"; {constant} lines only while compiling" if constant else ""))
