-- Reads two whole arrays in one call each: the states of the 247 Modbus slaves and 96 process values.
require "lib_talux_lua"

-- The elements of an indexed parameter as a Lua table, counted from 1.
local function readAll(kind, name, count)
  local array = kind.new(count)
  if not kind.get(array, name, 1, count) then error(name .. ": " .. talux_getlasterror()) end
  local values = {}
  for i = 1, count do values[i] = kind.getitem(array, i - 1) end
  return values
end

-- On the device other programs write these; here a few values make the tables less empty.
for address, status in pairs {[3] = 1, [17] = 2, [247] = 1} do
  talux_command(("TLX_conman_status %d=%d"):format(address, status))
end
for i = 1, 12 do talux_command(("TLX_vMWR %d=%.3f"):format(i, 230 + math.sin(i))) end

local status = readAll(talux_longarray, "TLX_conman_status", 247)
print "slave  status"
for address, value in ipairs(status) do
  if value ~= 0 then print(("%5d  %6d"):format(address, value)) end
end
print(("(%d slaves read, those with status 0 not shown)"):format(#status))

local values = readAll(talux_doublearray, "TLX_vMWR", 96)
print "\n vMWR        +0        +1        +2        +3        +4        +5        +6        +7"
for row = 1, #values, 8 do
  print(("%5d %s"):format(row, ("%10.3f"):rep(8)):format(table.unpack(values, row, row + 7)))
end

-- What cannot be read says why.
print ""
for _, try in ipairs {{"TLX_conman_status", 1, 248}, {"TLX_U1_prim", 1, 1}, {"TLX_vMWR", 1, 96}} do
  talux_longarray.get(talux_longarray.new(247), table.unpack(try))
  print(("%s %d..%d into 247 longs: %s"):format(try[1], try[2], try[3], talux_getlasterror()))
end
