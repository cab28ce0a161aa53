-- Waits for an earth fault in this feeder, logs two seconds before and after it, signals it to telecontrol and waits
-- until somebody acknowledges it. Try it beside a scenario: scripts/run.sh --scenario forward examples/earth_fault.lua
local talux = require "talux"

local relay, button = 3, 1    -- the relay that follows the transient method, the input of the acknowledgement
local signal = "vBA"          -- its element 1 is what telecontrol gets
local period, span = 0.1, 2   -- seconds: between two looks, before and after the fault

talux.apply {BAassign = {[relay] = "qu2 ->F"}}
talux.update()

-- Looks until so many seconds after the fault; gives all looks and the number of the one that saw the fault.
local function watch()
  local looks, fault = {}, nil
  talux.every(period * 1000, function(k)
    looks[k] = talux.record "MessRecord01"
    if not fault and talux.get("REL" .. relay) == 1 then
      fault = k
      talux.set(signal, {1})
      print "earth fault in this feeder"
    end
    return not fault or k < fault + span / period
  end)
  return looks, fault
end

local looks, fault = watch()
print "  s    U0 kV    I0 A"
for k = fault - span / period, fault + span / period, 5 do
  local look = looks[k]
  if look and k ~= fault then print(("%4.1f  %6.1f  %6.1f"):format((k - fault) * period, look.U0p, look.I0p)) end
end

talux.every(period * 1000, function() return talux.get("BE" .. button) ~= 1 end)
talux.set(signal, {0})
print "acknowledged"
