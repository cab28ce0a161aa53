# From the names that the library exports (nm -D --defined-only --format=posix) the source of one that is older: the same
# names, and three rows less in each table that grows. Programs are linked with it and never run with it.
BEGIN {
  rows["DefParamProperties"] = "const stParamProperties"
  rows["ParamProperties"] = "stParamProperties"
  rows["DefParamSymbols"] = rows["DefParamTextSymbols"] = "const stParamSymbol"
  rows["DefParamFamilies"] = "const stParamFamily"
  print "#include \"ParamSystem/TALUX_ParamStrings.h\""
}
$2 ~ /^[TtWi]$/ { printf "__asm__(\".text\\n.globl %s\\n.type %s,%%function\\n%s:\\n.zero 4\");\n", $1, $1, $1; next }
$1 in rows { printf "%s %s[0x%s / sizeof(%s) - 3]{};\n", rows[$1], $1, $4, rows[$1]; next }
{ printf "__asm__(\".data\\n.balign 32\\n.globl %s\\n.type %s,%%object\\n.size %s,0x%s\\n%s:\\n.zero 0x%s\");\n", $1, $1, $1, $4, $1, $4 }
