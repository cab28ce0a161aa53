#!/bin/bash
# What compiling everything costs on a small machine: CPU seconds in all, and the units that take most memory. Ends with 1
# if one takes more than 250 MB.
#
#   costs.sh [PRESET]    release by default
. "$(dirname "$(readlink -f "$0")")/common.sh"
cd "$project"
need build time

folder=$scratch
export CCACHE_DISABLE=1 TALUX_UNITS=$folder/units
cat >"$folder/launch" <<'END'
#!/bin/bash
exec /usr/bin/time -a -o "$TALUX_UNITS" -f "%M ${*: -1}" "$@"
END
chmod +x "$folder/launch"
quiet cmake --preset "${1-release}" -B "$folder/build" -DTALUX_THRIFTY=ON \
  -DCMAKE_C_COMPILER_LAUNCHER="$folder/launch" -DCMAKE_CXX_COMPILER_LAUNCHER="$folder/launch"
quiet /usr/bin/time -o "$folder/total" -f '%U %S' cmake --build "$folder/build"
awk '{ printf "%.0f CPU seconds\n", $1 + $2 }' "$folder/total"
sort -rn "$TALUX_UNITS" | awk -v project="$project/" '
  NR == 1 { most = $1 }
  NR <= 5 { sub(project, "", $2); printf "%.0f MB %s\n", $1 * 1.024 / 1000, $2 }
  END { exit NR < 100 || most * 1.024 > 250000 }'
