-- What the device program measures never stays the same; how each quantity is computed is tried without a store.
local talux = require "talux"
for _, name in ipairs {"f_grid", "COSPHI", "U12_prim", "U31_sec", "U2_prim", "I0", "I1_prim", "phiUI3", "S2_prim", "P_prim", "Q_prim"} do
  local first = talux.get(name)
  assert(talux.wait(function() return talux.get(name) ~= first end, 5), name .. " never moves")
end
