-- Reads two whole arrays in one call each: the states of the 247 Modbus slaves and 96 process values.
local talux = require "talux"

-- On the device other programs write these; here a few values make the tables less empty.
talux.set("conman_status", {[3] = 1, [17] = 2, [247] = 1})
for i = 1, 12 do talux.set("vMWR", {[i] = 230 + math.sin(i)}) end

local status = talux.get("conman_status", 1, 247)
print "slave  status"
for address, value in ipairs(status) do
  if value ~= 0 then print(("%5d  %6d"):format(address, value)) end
end
print(("(%d slaves read, those with status 0 not shown)"):format(#status))

local values = talux.get("vMWR", 1, 96)
print "\n vMWR        +0        +1        +2        +3        +4        +5        +6        +7"
for row = 1, #values, 8 do
  print(("%5d %s"):format(row, ("%10.3f"):rep(8)):format(table.unpack(values, row, row + 7)))
end

-- The same without tables: arrays of the module, filled again and again. What cannot be read says why.
local sum, array = 0, talux_doublearray.new(96)
for i = 0, talux_doublearray.get(array, "TLX_vMWR", 1, 96) - 1 do sum = sum + talux_doublearray.getitem(array, i) end
print(("\nsum of vMWR: %.3f"):format(sum))
for _, try in ipairs {{"TLX_conman_status", 1, 248}, {"TLX_U1_prim", 1, 1}, {"TLX_vMWR", 1, 96}} do
  talux_longarray.get(talux_longarray.new(247), table.unpack(try))
  print(("%s %d..%d into 247 longs: %s"):format(try[1], try[2], try[3], talux_getlasterror()))
end
