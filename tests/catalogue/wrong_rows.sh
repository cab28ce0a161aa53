#!/bin/bash
# A wrong row must not compile, and the compiler's message must name it: one fault for each rule, all in one copy
# of the catalogue.
#
#   wrong_rows.sh PROJECT COMPILER..
set -eu
project=$1; shift
copy=$(mktemp -d); trap 'rm -rf "$copy"' EXIT
cp -r "$project/ParamSystem" "$copy"

expected=()
wrong() { # FILE SED "ROW", "RULE", NUMBER
  sed -i "$2" "$copy/ParamSystem/catalogue/$1.h"
  ! cmp -s "$project/ParamSystem/catalogue/$1.h" "$copy/ParamSystem/catalogue/$1.h" || expected+=("no change: $2")
  expected+=("$3")
}
wrong Records 's/30002/30003/' '"StatRecord_c0", "the id is none of this type'
wrong Firewall 's/8010, /8011, /' '"FW_ETH0_com", "another row has the same id", 8011'
wrong Network 's/"DNS"/"ESSID"/' '"ESSID", "another parameter has the same name"'
wrong Templates 's/"DLG_Test"/""/' '"only templates are nameless, with a name of their own", 18000'
wrong Scripting 's/runtime(number(6094, "conman_status"))/number(6094, "conman_status")/' \
  '"conman_status", "indexes run from 1, of run-time values only", 247'
wrong TimeServices 's/2800/28000/' '"Modbustime_reg", "the default is outside the range", 6033'
wrong Security 's/security(flag(8174, "ro_pin_active"))/flag(8174, "ro_pin_active")/' \
  '"ro_pin_active", "another user level than its like", 1'
wrong AnalogInputs 's/"kni1", {.like = kCtRatio/"kni1", {.like = kParity/' \
  '"kni1", "the template is of another kind or range", 18023'
wrong Recorder '/"stat_S_all_av_enabled"/d' '"rows", "wrong number of rows", 2415'

if message=$("$@" -std=c++20 -fsyntax-only -I"$copy" "$copy/ParamSystem/dictionary/CatalogueChecks.cpp" 2>&1); then
  echo 'wrong rows compile'; exit 1
fi
status=0
for fault in "${expected[@]}"; do
  grep -qF -- "$fault" <<<"$message" || { echo "the compiler does not say: $fault"; status=1; }
done
exit "$status"
