-- The device program measures everything that it says it fills: no value is zero, and all of them move.
require "lib_talux_lua"

local names = {"f_grid", "COSPHI", "U12_prim", "U23_prim", "U31_prim", "U12_sec", "U23_sec", "U31_sec"}
for _, phase in ipairs {1, 2, 3, 0, ""} do
  for _, quantity in ipairs {"S%s_prim", "P%s_prim", "Q%s_prim"} do names[#names + 1] = quantity:format(phase) end
  if phase ~= "" then
    for _, quantity in ipairs {"U%s_prim", "U%s", "I%s_prim", "I%s", "phiUI%s"} do
      names[#names + 1] = quantity:format(phase)
    end
  end
end

local first, still = {}, {}
for _, name in ipairs(names) do first[name] = tonumber(talux_command("TLX_" .. name)) end
for _ = 1, 100 do
  talux_usleep(50000)
  still = {}
  for _, name in ipairs(names) do
    local value = tonumber(talux_command("TLX_" .. name))
    if value == 0 or value == first[name] then still[#still + 1] = name end
  end
  if #still == 0 then break end
end
assert(#still == 0, "zero or never moving: " .. table.concat(still, ", "))
print(#names .. " values move")
