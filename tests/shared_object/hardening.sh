#!/bin/sh
# What the built object must be like: linked against the C library alone, nothing writable that is executable,
# everything resolved and made read-only at load, calls checked.
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
exit "$wrong"
