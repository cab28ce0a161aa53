#!/bin/bash
# Follows the lists of docs/architecture.md in a copy of the project: adds a parameter, a refusal and a command word at the
# places that the page names, and the tests pass. Then it leaves out one place after the other: something fails and names it.
# Without --each it leaves out only those that are tried in seconds. release is built.
# shellcheck disable=SC2016 # texts for Perl
. "$(dirname "$(readlink -f "$0")")/../../scripts/common.sh"
copy=$scratch/copy release=$builds/build-release status=0
lists=() files=() edits=() signs=() slow=()

# place LIST FILE SIGN slow|'' EDIT: the change of FILE, in Perl; without it something prints SIGN.
place() { lists+=("$1") files+=("$2") signs+=("$3") slow+=("$4") edits+=("$5"); }
place parameter ParamSystem/parameters/Display.h 'no parameter.*disp_dark' slow \
  's/    text\(9019.*\n\K/    flag(8184, "disp_dark", {}, {{"Anzeige dunkel", "Die Anzeige bleibt dunkel"}, {"Display dark", "The display stays dark"}}),\n/'
place refusal ParamSystem/kepl/Refusal.h 'rangeTooLong.*is not a member' slow \
  's/ typeUnknown,\n\K/    rangeTooLong,\n/'
place refusal ParamSystem/kepl/Refusal.cpp 'Refusal.cpp.*each enumerator has its row' '' \
  's/constexpr KeplText kTypeUnknown.*\n\K/constexpr KeplText kRangeTooLong = {"Bereich zu lang", "range too long"};\n/;
   s/kTypeUnknown},\n\K/    {Refusal::rangeTooLong, kRangeTooLong},\n/'
place refusal tools/talux/LineCheck.cpp 'LineCheck.cpp.*rangeTooLong.*not handled' '' \
  's/case Refusal::index2TooHigh:\n\K/    case Refusal::rangeTooLong:\n/'
place refusal ParamSystem/kepl/VariableDecision.cpp 'range too long' slow \
  's/Refusal::index1GreaterThanIndex2\)\K;/ && demand(parts.last - parts.first < 200, Refusal::rangeTooLong);/'
place refusal lua/talux.lua 'range too long is no refusal in lua/talux.lua' '' \
  's/"\^type unknown\$"/"^range too long\$", $&/'
place refusal tests/KeplModel.h "range too long" slow \
  's/"<< INDEX 1 GREATER THAN INDEX 2 >>"\);\n\K/            if (term.index[1] - term.index[0] >= 200) return refuse("range too long");\n/'
place refusal docs/kepl.md 'range too long is not in docs/kepl.md' '' \
  's/\z/\n`range too long`: of more than 200 elements.\n\n```kepl\nkepl> TLX_conman_status 1.201\nrange too long\n```\n/'
place 'command word' ParamSystem/kepl/Command.h 'reload.*is not a member' slow \
  's/ update,\n\K/    reload,\n/'
place 'command word' ParamSystem/kepl/Command.h 'Command.h.*each enumerator has its row' slow \
  's/"error: can.t update parameter\\n"},\n\K/    {Command::reload, "reload", 2, false, false, VarLoadParams, "reloaded\\n", "error: not reloaded\\n"},\n/'
place 'command word' tests/KeplModel.h "reload" slow \
  's/"error: can.t update parameter"\K}/},\n{"reload", 2, "VarLoadParams", "reloaded", "error: not reloaded"}/'
place 'command word' docs/kepl.md 'reload is not in docs/kepl.md' '' \
  's/\z/\n`reload` loads `parameter.ini` again.\n\n```kepl\nkepl> save,reload\nreloaded\n```\n/'

fault() { echo "$*"; status=1; }

# The page names the same files, each from some folder on.
for list in refusal 'command word'; do
  mapfile -t named < <(sed -n "/^\*\*\.\. add a $list/,/^[^ 0-9].*\*\*/p" "$project/docs/architecture.md" | sed -n '/^[ 1-9]/p' |
    grep -o "\`[A-Za-z/]*/[A-Za-z]*\.[a-z]*\`" | tr -d "\`" | sort -u)
  mapfile -t known < <(for k in "${!files[@]}"; do [ "${lists[k]}" != "$list" ] || echo "${files[k]#ParamSystem/}"; done | sort -u)
  [ "${named[*]}" = "${known[*]}" ] || fault "$list: the page names ${named[*]}, this script ${known[*]}"
done

# The copy takes the path of the project, so that nothing is built again.
mkdir -p "$copy/build-release"
tar -C "$project" --exclude='./build-*' --exclude=./.git -c . | tar -C "$copy" -x
cp -a "$release/." "$copy/build-release"
in_copy() { bwrap --dev-bind / / --bind "$copy" "$project" --bind "$copy/build-release" "$release" --chdir "$project" "$@"; }

# attempt [ACCEPT]: builds and tests the copy.
attempt() {
  in_copy cmake --build "$release" --target lib_talux_lua talux dictionary kepl_model_test kepl_doc_test inside_test || return
  in_copy "$release/tools/talux/talux" explain disp_dark || return
  in_copy "$release/tools/dictionary" "--${1-check}" . || return
  in_copy ctest --test-dir "$release" -R '^(kepl_model_test|kepl_doc_test|inside_test)$' --output-on-failure -j 2
}

# put FILE [K]: the file with all its changes but K.
put() {
  local k
  cp "$project/$1" "$copy/$1"
  for k in "${!files[@]}"; do
    [[ ${files[k]} = "$1" && $k != "${2-}" ]] || continue
    cp "$copy/$1" "$scratch/before"
    perl -0pi -e "${edits[k]}" "$copy/$1"
    ! cmp -s "$copy/$1" "$scratch/before" || fault "${lists[k]}: the change of $1 finds nothing to change"
  done
}
# fails SIGN WHAT: without WHAT something fails and prints SIGN.
fails() {
  if attempt >"$scratch/log" 2>&1; then fault "nothing fails without $2"
  elif ! grep -q -- "$1" "$scratch/log"; then tail -30 "$scratch/log"; fault "what fails without $2 does not say: $1"
  else echo "ok: without $2: $(grep -m1 -- "$1" "$scratch/log" | cut -c1-150)"; fi
}
for file in "${files[@]}"; do put "$file"; done
fails docs/parameters 'parameter: dictionary.sh --accept'
attempt accept >"$scratch/log" 2>&1 || { tail -40 "$scratch/log"; fault 'with all places something fails'; }
for k in "${!files[@]}"; do
  [ -z "${slow[k]}" ] || [ "${1-}" = --each ] || continue
  put "${files[k]}" "$k"
  fails "${signs[k]}" "${lists[k]}: ${files[k]}"
  put "${files[k]}"
done
exit "$status"
