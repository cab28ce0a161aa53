"""Prints how many lines and branches were run, and where a condition was never true (T) or never false (F).

coverage.py BRANCHES.json LINES.info: two exports of llvm-cov. A template counts once, whatever it is made for; a condition
that the compiler decides (`if constexpr`) is no branch.
"""
import collections
import json
import posixpath
import sys

PARTS = ("module", "support/ MenuSystem/ ParamSystem/ src/"), ("layers", "talux/"), ("talux", "tools/talux/"), \
    ("desk", "tools/desk/")


def inside(path):
    """The path of a source below the project, which a compiler cache spells in another way."""
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
    """File -> line -> how often."""
    found, lines = collections.defaultdict(dict), {}
    with open(path, encoding="utf-8") as export:
        for key, _, value in (row.rstrip().partition(":") for row in export):
            if key == "SF":
                lines = found[inside(value)]
            elif key == "DA":
                line, count = map(int, value.split(",")[:2])
                lines[line] = lines.get(line, 0) + count
    return found


def percent(part, whole):
    return f"{part} of {whole}, {100 * part / max(whole, 1):.1f} %"


branches, lines = branches_in(sys.argv[1]), lines_in(sys.argv[2])
for name, folders in PARTS:
    hit = missed = run = unrun = 0
    for file in sorted(lines):
        if not file.startswith(tuple(folders.split())):
            continue
        ran = [count > 0 for count in lines[file].values()]
        run, unrun = run + sum(ran), unrun + len(ran) - sum(ran)
        never = []
        for (line, column, *_), (true, false) in sorted(branches[file].items()):
            if true or false or not lines[file].get(line):
                hit, missed = hit + (true > 0) + (false > 0), missed + (not true) + (not false)
                if not true or not false:
                    never.append(f"{line}:{column}{'' if true else 'T'}{'' if false else 'F'}")
        unrun_lines = [str(line) for line, count in sorted(lines[file].items()) if not count]
        if never or unrun_lines:
            print(f"  {file}", *never, *(["lines", ",".join(unrun_lines)] if unrun_lines else []))
    print(f"{name}: lines {percent(run, run + unrun)}; branches {percent(hit, hit + missed)}")
