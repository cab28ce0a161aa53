-- Watches voltages and currents: a line of CSV every 200 ms on the standard output.
--
--   scripts/run.sh examples/watch.lua [SECONDS [MILLISECONDS]] >watch.csv
local talux = require "talux"

local seconds, period = tonumber(arg[1]) or 5, tonumber(arg[2]) or 200
local members = {"U1p", "U2p", "U3p", "U0p", "I1p", "I2p", "I3p", "I0p", "cosphi", "f_grid"}

print("time,cycle," .. table.concat(members, ","))
local cycle
talux.every(period, function(k)
  local record = talux.record "MessRecord01"
  if record.Cnt ~= cycle then -- the device has measured anew
    cycle = record.Cnt
    local line = {("%.3f"):format((k - 1) * period / 1000), ("%d"):format(cycle)}
    for _, member in ipairs(members) do line[#line + 1] = ("%.4f"):format(record[member]) end
    print(table.concat(line, ","))
  end
  return k * period < seconds * 1000
end)
