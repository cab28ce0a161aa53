-- What the checks of the layer for scripts say of each case: lines of name, value in hex, and whether it is a text.
local checks, dictionary = require "talux.checks", require "talux.dictionary"
local odd = {nan = 0 / 0, inf = 1 / 0, ["-inf"] = -1 / 0}
for line in io.lines() do
  local name, hex, kind = line:match "^(%S+) (%x*) (%a)$"
  local value = hex:gsub("..", function(byte) return string.char(tonumber(byte, 16)) end)
  if kind == "N" then value = odd[value] or tonumber(value) or value end
  local taken, new = checks.value(dictionary.row(name), value)
  print(not taken and "-" or kind == "N" and ("%.17g"):format(new) or taken)
end
