-- What the layer for scripts makes of each case: lines of name, value in hex, and whether it is a text. What its checks
-- take it also stores; an address of an interface, which is applied at once, is only checked.
local talux, checks, dictionary = require "talux", require "talux.checks", require "talux.dictionary"
local odd = {nan = 0 / 0, inf = 1 / 0, ["-inf"] = -1 / 0}
for line in io.lines() do
  local name, hex, kind = line:match "^(%S+) (%x*) (%a)$"
  local value = hex:gsub("..", function(byte) return string.char(tonumber(byte, 16)) end)
  if kind == "N" then value = odd[value] or tonumber(value) or value end
  local row = dictionary.row(name)
  local taken, new = checks.value(row, value)
  if row.kind ~= "interface address" then assert(pcall(talux.set, name, value) == (taken ~= nil), line) end
  print(not taken and "-<" .. new or kind == "N" and ("%.17g"):format(new) or taken)
end
