#!/bin/sh
# Tries what a user gets, the installed tree and the packages, in a scratch root with Debian's Lua 5.2 and
# nothing of the build: require needs no setting, and programs build and run against it.
#
#   run.sh BUILD ARCHITECTURE C-COMPILER CMAKE [CMAKE-OPTION..]
# shellcheck disable=SC2016 # texts for the inner shell
set -eu
build=$1 architecture=$2 compiler=$3 cmake=$4
shift 4
project=$(cd "$(dirname "$0")/../.." && pwd)
work=$build/tests/installed sysroot=${TALUX_BUILD_DIR:-$project}/build-sysroot/$architecture
[ -w "$build" ] || { echo 'skipped: the build folder is closed to this user'; exit 77; }
for command in qemu-arm:qemu-user readelf:binutils pkg-config:pkg-config dpkg-deb:dpkg apt-get:apt; do
  command -v "${command%:*}" >/dev/null || { echo "skipped: needs the package ${command#*:}"; exit 77; }
done
"$project/scripts/isolated.sh" -- test -w / || { echo 'skipped: this root cannot be written'; exit 77; }
case $architecture in
  amd64) emulator=qemu-x86_64 multiarch=x86_64-linux-gnu ;;
  armhf) emulator='qemu-arm -cpu cortex-a7' multiarch=arm-linux-gnueabihf ;;
  armel) emulator='qemu-arm -cpu arm926' multiarch=arm-linux-gnueabi ;;
  *) echo "skipped: there are no packages for $architecture"; exit 77 ;;
esac

fail() { echo "FAILED: $*" >&2; exit 1; }
fresh_root() { # NAME: a scratch root
  "$project/scripts/sysroot.sh" "$architecture" "$sysroot" || {
    [ "$?" = 75 ] || exit 1
    echo 'skipped: the package servers cannot be reached'
    exit 77
  }
  rm -rf "${work:?}/$1"
  mkdir -p "$work"
  cp -al "$sysroot" "$work/$1"
}
inside() { # NAME TEXT: a shell text in which $run PROGRAM runs with the scratch root as its /usr
  "$project/scripts/isolated.sh" --read "$work" -- \
    env -u LUA_PATH -u LUA_CPATH run="$emulator -L $work/$1" root="$work/$1" programs="$work/programs" sh -euc "$2"
}
try_script() { # NAME
  answer=$(inside "$1" '$run $root/usr/bin/lua5.2 -e "
    local talux = require [[talux]] talux.set([[Uearth]], 35) print(talux_command([[TLX_Uearth,5,+]]))"')
  [ "$answer" = 40.000000 ] || fail "$1: require gave '$answer'"
}

# The tree of cmake --install.
fresh_root tree
DESTDIR=$work/tree "$cmake" --install "$build" --prefix /usr/local >/dev/null
try_script tree

# On a PC they run in the isolation that comes with them.
isolation=$("$work/tree/usr/local/share/talux-lua-dev/scripts/isolated.sh" -- printenv TALUX_ISOLATION)
[ "$isolation" = "$("$project/scripts/isolated.sh" -- printenv TALUX_ISOLATION)" ] || fail "isolated.sh: '$isolation'"

# Programs that know the installed tree only, found by CMake and by pkg-config. The standards that they need come
# with the targets. Only a device's processor sees addresses set, unless --apply is said.
rm -rf "$work/programs"
"$cmake" -G Ninja -S "$project/examples/programs" -B "$work/programs" -DCMAKE_CXX_STANDARD=14 \
  -DCMAKE_PREFIX_PATH="$work/tree/usr/local" "$@" >/dev/null
"$cmake" --build "$work/programs" >/dev/null
answer=$(inside tree '
  printf "TLX_Name=\"Nord 1\"\n" >/parameter.ini
  $run $programs/boot 2>&1 | grep -o "VarStaticIP:\|boot: .*" | sort -u
  $run $programs/boot --apply 2>&1 | grep -o "VarStaticIP:\|boot: .*" | sort -u
  printf "TLX_Name\nTLX_Language=2\nTLX_Language,10,*\nnonsense\n" | $run $programs/entry
  $run $programs/evaluate 6,7,*
  $run $programs/station "Nord 2"
  $run $programs/station "A name that is longer than the forty characters that it may have" 2>&1 || echo refused')
case $architecture in # the emulated ARMv5 does not call itself as the board does
  armhf) boots='VarStaticIP:
VarStaticIP:' ;;
  *) boots='boot: no device, so no address and no clock is set; boot --apply does
VarStaticIP:' ;;
esac
[ "$answer" = "$boots"'
"Nord 1"

20.000000
<< SYNTAX ERROR >>
42.000000
Name was "Nord 1"
Name is "Nord 2"
station: Name: TEXT TOO LONG (64 characters, at most 40)
Name was "Nord 2"
refused' ] || fail "programs: $answer"

flags=$(PKG_CONFIG_LIBDIR=$work/tree/usr/local/lib/pkgconfig pkg-config --cflags --libs talux_lua)
# shellcheck disable=SC2086 # flags are words
"$compiler" "$project/examples/entry.c" $flags -Wl,-rpath,/usr/local/lib -o "$work/programs/by-hand"
answer=$(inside tree 'echo "6,7,*" | $run $programs/by-hand')
[ "$answer" = 42.000000 ] || fail "entry built with pkg-config: $answer"

# What the page says of programs for a device, with the compiler of this architecture: its program, and those with a
# group, run where nothing but the C library is.
page_block() { # LINE KIND: the first block of that kind after a line that begins so
  awk -v line="$1" -v fence="\`\`\`$2" 'index($0, line) == 1 { on = 1 } /^```$/ { if (block) exit }
    block
    on && $0 == fence { block = 1 }' "$project/docs/linking.md"
}
bare=$work/bare
rm -rf "$bare"
mkdir -p "$bare/usr/lib"
(cd "$sysroot" && find . \( -name 'ld-linux*' -o -name libc.so.6 -o -name libm.so.6 \) | tar -c -T -) | tar -x -C "$bare"
cp -a "$work"/tree/usr/local/lib/lib_talux_lua.so.1 "$bare/usr/lib"
page_block '## Groups' cpp >"$work/writer.cpp"
page_block 'and the reader' cpp >"$work/reader.cpp"
for way in CMake pkg-config; do
  rm -rf "$work/programs"
  mkdir "$work/programs"
  page_block "**With $way" cmake >"$work/programs/CMakeLists.txt"
  page_block "**With $way" sh | sed "s,arm-linux-gnueabihf,$multiarch,g; s,^tree=.*,tree=$work/tree/usr/local," \
    >"$work/block.sh"
  for source in "$project/examples/programs/station.cpp" "$work/writer.cpp" "$work/reader.cpp"; do
    program=$work/programs/${source##*/}
    cp "$source" "$work/programs/station.cpp"
    (cd "$work/programs" && CMAKE_GENERATOR=Ninja sh -eu "$work/block.sh" >/dev/null)
    mv "$work/programs/build/station" "${program%.cpp}"
    readelf -d "${program%.cpp}" | grep NEEDED | grep -Ev '\[(lib_talux_lua.so.1|lib[cm].so.6|ld-linux[^]]*)\]' &&
      fail "$program by $way needs more than the C library"
  done
  answer=$(inside bare '$run $programs/station Süd; $run $programs/writer; $run $programs/reader')
  [ "$answer" = 'Name was ""
Name is "Süd"
cycle 7: 50.01 Hz' ] || fail "programs by $way as docs/linking.md says: $answer"
done

# The packages: the first one alone is enough for scripts, and both hold what the tree holds, in the folders of
# their architecture, so that those of several go together.
rm -f "$work"/*.deb
cpack=$(dirname "$cmake")/cpack
"$cpack" --config "$build/CPackConfig.cmake" -B "$work" >/dev/null
fresh_root package
dpkg-deb -x "$work"/talux-lua_*_"$architecture".deb "$work/package"
try_script package
dpkg-deb -x "$work"/talux-lua-dev_*_"$architecture".deb "$work/package"
dpkg-deb -x "$work"/talux_*_"$architecture".deb "$work/package"
newest=$(grep -ao 'GLIBC_2\.[0-9]*' "$work/package/usr/bin/talux" | sort -V | tail -1)
dpkg --compare-versions "${newest#GLIBC_}" le "$(dpkg-deb -f "$work"/talux_*.deb Depends | sed 's/.*>= //; s/)//')" ||
  fail "talux needs $newest"
for name in tree package; do
  inside "$name" '$run "$(find "$root/usr" -path "*/bin/talux")" explain Uearth' | grep -q ' 1 to 90$' ||
    fail "$name: talux explains nothing"
done
(cd "$work/tree/usr/local" && find . ! -type d | LC_ALL=C sort) >"$work/tree.list"
for package in "$work"/*.deb; do
  [ "$package" != "${package#"$work/talux-"}" ] && multi=same || multi=foreign
  [ "$(dpkg-deb -f "$package" Multi-Arch)" = "$multi" ] || fail "$package has a wrong Multi-Arch"
  dpkg-deb --fsys-tarfile "$package" | tar -t
done | sed -nE "/\/$/d; s,^\./usr/lib/$multiarch/,./lib/,p
  s,^\./usr/(bin|include|share/man|share/bash-completion|share/lua|share/talux-lua-dev|share/doc/talux-lua-dev/(docs|examples|README))(.*),./\1\3,p" |
  LC_ALL=C sort | diff "$work/tree.list" - || fail 'packages and installed tree differ'
echo 'installed tree, programs and packages work'
