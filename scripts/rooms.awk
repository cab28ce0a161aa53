# Reads what nm -AC says of the objects, and names every use of what a later room defines. `rooms` are folders in their
# order; objects elsewhere do not count.
BEGIN {
  count = split(rooms, name, " ")
  for (k = 1; k <= count; k++) rank[name[k]] = k
}

{
  object = $1
  sub(/^\.\/(generated\/)?/, "", object)
  sub(/:.*/, "", object)
  room = object
  sub(/\/[^\/]*$/, "", room)
  symbol = $0
  sub(/^[^:]*:[ 0-9a-f]* [A-Za-z] /, "", symbol)
}

/ U / && room in rank { used[object "\t" symbol] = rank[room] }

/ [BDRT] / && room in rank {
  home[symbol] = rank[room]
  place[symbol] = object
}

END {
  for (each in used) {
    split(each, use, "\t")
    symbol = use[2]
    if (!(symbol in home) || home[symbol] <= used[each]) continue
    print use[1] " points back to " place[symbol] ": " symbol
    found = 1
  }
  exit found || length(home) < 100
}
