#!/bin/sh
# Every public header compiles by itself from what git has of the project, before anything is built, with the folder of
# the project as the only one to look in.
#
#   headers.sh PROJECT COMPILER..    the C++ compilers, g++ and clang++ for instance
set -eu
project=$1; shift
git -C "$project" rev-parse --verify -q HEAD >/dev/null 2>&1 || { echo 'skipped: this is no checkout'; exit 77; }
fresh=$(mktemp -d); trap 'rm -rf "$fresh"' EXIT
cd "$project"
git ls-files -z support ParamSystem MenuSystem src | xargs -0 cp -p --parents -t "$fresh"
cd "$fresh"
status=0
compile() { # HEADER COMPILER..
  header=$1; shift
  echo "#include \"$header\"" >alone
  "$@" -Wall -Wextra -pedantic-errors -Werror -I. -fsyntax-only alone || { echo "$header: $*"; status=1; }
}
for header in ParamSystem/*.h MenuSystem/TALUX_*.h src/lib_talux_lua.h src/talux_*.h; do
  for compiler in "$@"; do
    for standard in c++17 c++20; do
      compile "$header" "$compiler" -x c++ -std="$standard"
    done
  done
done
for header in ParamSystem/TALUX_Funcs.h src/talux_*.h; do
  for compiler in "$@"; do
    compile "$header" "$compiler" -x c -std=c99
  done
done
exit "$status"
