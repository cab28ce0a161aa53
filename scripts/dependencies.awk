# Reads the output of nm -AC for the objects and reports every use of a symbol that a later folder defines. `folders` has
# them in their order; objects elsewhere do not count. The object of a folder compiled as one has the folder's name.
BEGIN {
  count = split(folders, name, " ")
  for (k = 1; k <= count; k++) rank[name[k]] = k
}

{
  object = $1
  sub(/^\.\/(generated\/)?/, "", object)
  sub(/:.*/, "", object)
  if (sub(/^Unity\/unity_/, "", object) && sub(/_cxx.*/, "", object)) gsub(/_/, "/", object)
  folder = object
  sub(/\/[^\/]*\.o$/, "", folder)
  symbol = $0
  sub(/^[^:]*:[ 0-9a-f]* [A-Za-z] /, "", symbol)
}

/ U / && folder in rank { used[object "\t" symbol] = rank[folder] }

/ [BDRT] / && folder in rank {
  home[symbol] = rank[folder]
  place[symbol] = object
}

END {
  for (each in used) {
    split(each, use, "\t")
    symbol = use[2]
    if (!(symbol in home) || home[symbol] <= used[each]) continue
    print use[1] " depends on " place[symbol] ": " symbol
    found = 1
  }
  exit found || length(home) < 100
}
