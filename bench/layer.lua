-- What the layer talux costs beside a plain call of the module: the least of many rounds, in microseconds.
local talux = require "talux"

local settings = {
  qu2_Ice = 7.5, qu2_SigDur = 2, Uearth = 35, Uearth_SigDel = 0.5, knu = {201, 201, 201}, T104_port = 2405, Language = 2,
  qu2_active = false, BAassign = {[3] = "qu2 ->F"}, Name = "Feeder 7",
}
local function least(name, times, f)
  local seconds = math.huge
  for _ = 1, 25 do
    collectgarbage()
    local start = os.clock()
    for _ = 1, times do f() end
    seconds = math.min(seconds, (os.clock() - start) / times)
  end
  print(("%-36s %8.2f"):format(name, seconds * 1e6))
end

least("tonumber(talux_command(name))", 20000, function() return tonumber(talux_command "TLX_Uearth") end)
least("get", 20000, function() return talux.get "Uearth" end)
least("get of 96 elements", 500, function() return talux.get("vBE", 1, 96) end)
least("record of 59 members", 200, function() return talux.record "MessRecord01" end)
least("set", 1000, function() talux.set("Uearth", 35) end)
least("apply of 12 settings", 200, function() talux.apply(settings) end)
least("changed", 10, function() talux.changed() end)
