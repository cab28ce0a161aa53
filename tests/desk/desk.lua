-- Beside the scenario "forward": snapshot, signals, reset button and overrides answer as docs/desk.md says.
local talux = require "talux"

local function await(what, condition)
  local done
  talux.every(20, function(k)
    done = condition()
    return not done and k < 400
  end)
  assert(done, what)
end

talux.apply {BAassign = {[3] = "qu2 ->F"}, LEDassign = {[1] = "qu2 ->F"}, qu2_SigDur = 3600, qu2_SigDur_LED = 3600}
talux.update()

talux.set("mw_req", 1)
await("the snapshot was not taken", function() return talux.get "mw_req" == 0 end)

await("the relay does not follow", function() return talux.get "REL3" == 1 end)
assert(talux.get "y_EarthFaultState" == 1 and talux.get "U0_prim" > 11)
await("the fault was not cleared", function() return talux.get "y_EarthFaultState" == 0 end)
assert(talux.get "REL3" == 1 and talux.get "y_LED" % 2 == 1, "qu2_SigDur and qu2_SigDur_LED keep the signal")
talux.set("BE_Reset_Button", 1)
await("the button does nothing", function() return talux.get "REL3" == 0 and talux.get "y_LED" % 2 == 0 end)
assert(talux.get "BE_Reset_Button" == 0)

for shown, kind in pairs {REL5 = "BA", BE5 = "BE", U1_prim = "MW", REL3 = "BAF"} do
  local number = ({U1_prim = 1, REL3 = 28})[shown] or 5
  talux.set("OVR_" .. kind .. "_val", {[number] = 1})
  talux.set("OVR_" .. kind .. "_enable", 1)
  await("no override of " .. shown, function() return talux.get(shown) == 1 end)
  talux.set("OVR_" .. kind .. "_enable", 0)
  await("the override stays", function() return talux.get(shown) ~= 1 end)
end
