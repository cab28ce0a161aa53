#!/bin/sh
# What the built object must be like: linked against the C library alone, nothing writable that is executable,
# everything resolved and made read-only at load, calls checked; data that changes, and no other, looked for by name.
#
#   hardening.sh READELF LIBRARY
set -eu
readelf=$1 library=$2
wrong=0
dynamic=$("$readelf" -dW "$library")
segments=$("$readelf" -lW "$library")
symbols=$("$readelf" --dyn-syms -W "$library")

check() { # WHAT TEXT PATTERN
  echo "$2" | grep -Eq "$3" || { echo "missing: $1"; wrong=1; }
}
refuse() { # WHAT TEXT PATTERN
  found=$(echo "$2" | grep -E "$3") || return 0
  echo "$1:"
  echo "$found"
  wrong=1
}

check 'name lib_talux_lua.so.1' "$dynamic" 'SONAME.*\[lib_talux_lua\.so\.1\]'
check 'immediate binding' "$dynamic" 'FLAGS_1.* NOW'
check 'stays loaded' "$dynamic" 'FLAGS_1.* NODELETE'
check 'read-only relocations' "$segments" 'GNU_RELRO'
check 'stack declared not executable' "$segments" 'GNU_STACK.* RW '
check 'stack protector' "$symbols" 'UND __stack_chk_fail'
check 'checked library calls' "$symbols" 'UND __[a-z]*printf_chk'
refuse 'text relocations' "$dynamic" 'TEXTREL'
refuse 'built-in library paths' "$dynamic" 'R(UN)?PATH'
refuse 'writable and executable' "$segments" '(LOAD|GNU_STACK).* RWE '
refuse 'needs more than the C library' \
  "$(echo "$dynamic" | grep NEEDED | grep -Ev '\[(libc|libm)\.so\.6\]|\[ld-linux[^]]*\]' || true)" .

# cmake/shared.list names the data that changes: a program may have its own copy.
sections=$("$readelf" -SW "$library" | sed -n 's/^ *\[ *\([0-9]*\)\] \([^ ]*\).*/\1 \2/p')
objects() { # SECTION-PATTERN: exported ones
  { echo "$sections"; echo "$symbols"; } |
    awk -v pattern="$1" 'NF == 2 { section[$1] = $2 } $4 == "OBJECT" && section[$7] ~ pattern { print $8 }' | sort
}
by_name=$("$readelf" -rW "$library" | awk 'NF >= 5 && $3 ~ /^R_/ { print $5 }' | sort -u)
refuse 'shared data that is not in the list' "$(objects '^[.](data|bss)$' | comm -23 - /dev/fd/3 3<<END
$by_name
END
)" .
refuse 'constant data that the library looks for by name' "$(objects '^[.](rodata|data[.]rel[.]ro)' | comm -12 - /dev/fd/3 3<<END
$by_name
END
)" .
exit "$wrong"
