#!/bin/bash
# Keeps what is printed from the dictionary and committed: docs/interface.tsv, what the device's other programs rely on;
# the pages of docs/parameters; and the answers that the documents and examples show.
#
#   dictionary.sh --check    names what is out of date, and says what a change means for the other programs
#   dictionary.sh --accept   writes it; look at it with git diff and commit it
. "$(dirname "$(readlink -f "$0")")/common.sh"
cd "$project"
[[ $# = 1 && $1 =~ ^--(check|accept)$ ]] || fail 'usage: dictionary.sh --check|--accept'

need build run
build release
jobs=$(nproc) status=0
[ "$1" = --check ] || { export TALUX_ACCEPT=1 jobs=1; } # two tests write to one page
ctest --test-dir "$builds/build-release" -L documents --output-on-failure -j "$jobs" || status=1
"$builds/build-release/tools/dictionary" "$1" . || status=1 # last, where it is read
exit "$status"
