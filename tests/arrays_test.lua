-- Arrays of longs and doubles: errors, bulk reads, and 100,000 calls with whatever a script can pass.
require "lib_talux_lua"

local check = dofile(arg[0]:match(".*/") .. "check.lua")
local equal, case = check.equal, check.case
local function expectError(wanted, f, ...)
  local good, text = pcall(f, ...)
  equal(good, false, wanted)
  -- Lua names the function as it finds it, or by a question mark.
  equal(tostring(text):gsub(" to '[^']*'", ""), "bad argument " .. wanted, wanted)
end

local long, double = talux_longarray, talux_doublearray
local longs, doubles = long.new(3), double.new(3)
local light = debug.upvalueid(function() return check end, 1)
local foreign = {io.stdout, light, "text", 7, {}, false}

case("elements are stored as their kind stores them", function()
  for _, kind in ipairs {{long, longs}, {double, doubles}} do
    local functions, array = kind[1], kind[2]
    equal(functions.size(array), 3, "size")
    for i = 0, 2 do equal(functions.getitem(array, i), 0, "a new element") end
    equal(select("#", functions.setitem(array, 1, 2.9)), 0, "results of setitem")
    equal(functions.size(functions.new(0)), 0, "size of an empty array")
  end
  equal(double.getitem(doubles, 1), 2.9, "a double")
  for value, stored in pairs {[2.9] = 2, [-2.9] = -2, [1e10] = 2^31 - 1, [-1e10] = -2^31, [1/0] = 2^31 - 1,
                              [-1/0] = -2^31, [2^31 - 1] = 2^31 - 1, [-2^31] = -2^31} do
    long.setitem(longs, 2, value)
    equal(long.getitem(longs, 2), stored, "long of " .. value)
    double.setitem(doubles, 2, value)
    equal(double.getitem(doubles, 2), value, "double of " .. value)
  end
  long.setitem(longs, 2, 0/0)
  equal(long.getitem(longs, 2), 0, "long of nan")
  double.setitem(doubles, 2, 0/0)
  equal(double.getitem(doubles, 2), 0/0, "double of nan")
end)

case("arguments are refused in their order: numbers, array, index", function()
  for _, kind in ipairs {{long, "longarray", longs, double}, {double, "doublearray", doubles, long}} do
    local functions, name, own, other = kind[1], kind[2], kind[3], kind[4]
    local wrong = {other.new(3), other.new(0)}
    for _, value in ipairs(foreign) do wrong[#wrong + 1] = value end
    for _, value in ipairs(wrong) do
      expectError(("#1 ('_talux_%s' expected)"):format(name), functions.size, value)
      expectError(("#1 ('talux_%s' expected)"):format(name), functions.getitem, value, 99)
      expectError(("#1 ('_talux_%s' expected)"):format(name), functions.setitem, value, 99, 1)
      expectError("#2 (number expected, got table)", functions.getitem, value, {})
      expectError("#2 (number expected, got no value)", functions.setitem, value)
      expectError("#3 (number expected, got nil)", functions.setitem, value, 0, nil)
    end
    expectError(("#1 ('_talux_%s' expected)"):format(name), functions.size)
    for _, index in ipairs {-1, 3, 1e9, -1e9, 2^31 - 1} do
      expectError("#2 (index out of range)", functions.getitem, own, index)
      expectError("#2 (index out of range)", functions.setitem, own, index, 1)
    end
    for _, size in ipairs {-1, -1e9, -2^31, 2^30, 2^31, 2^32, 2^32 + 3, 1e300, -1e300, 0/0, 1/0, -1/0} do
      expectError("#1 (size out of range)", functions.new, size)
    end
    expectError("#1 (number expected, got string)", functions.new, "many")
  end
end)

case("a whole parameter is read in one call or the reason told", function()
  local function expectRefusal(text, ...)
    equal(select("#", long.get(...)), 0, text)
    equal(talux_getlasterror(), text, text)
  end
  local all = long.new(247)
  for i = 1, 247 do talux_command(("TLX_conman_status %d=%d"):format(i, i * i % 1000)) end
  equal(long.get(all, "TLX_conman_status", 1, 247), 247, "count")
  for i = 1, 247 do equal(long.getitem(all, i - 1), i * i % 1000, "element " .. i) end
  equal(talux_getlasterror(), "", "last error after success")

  expectRefusal("<< ARRAYSIZE EXCEEDED >>", long.new(100), "TLX_conman_status", 1, 247)
  expectRefusal("<< WRONG DATA TYPE >>", double.new(247), "TLX_conman_status", 1, 247)
  expectRefusal("<< WRONG DATA TYPE >>", long.new(96), "TLX_vMWR", 1, 96)
  for _, value in ipairs(foreign) do expectRefusal("<< WRONG DATA TYPE >>", value, "TLX_vMWR", 1, 96) end
  expectRefusal("<< WRONG DATA TYPE >>", nil, "TLX_vMWR", 1, 0)
  expectRefusal("<< DATATYPE UNKNOWN >>", all, "TLX_OVR_MW_val", 1, 2) -- floats
  expectRefusal("<< MIN ID TOO LOW >>", all, "TLX_conman_status", 0, 247)
  expectRefusal("<< MIN ID TOO LOW >>", all, "TLX_conman_status", 0.9, 999)
  expectRefusal("<< MIN ID TOO LOW >>", all, "TLX_conman_status", "x", nil)
  expectRefusal("<< MIN ID TOO LOW >>", all, "TLX_conman_status", -1e300, 1e300)
  expectRefusal("<< MIN ID TOO LOW >>", all, "TLX_conman_status", 0/0, 0/0)
  expectRefusal("<< MAX ID TOO HIGH >>", all, "TLX_conman_status", 1, 248)
  expectRefusal("<< MAX ID TOO HIGH >>", all, "TLX_conman_status", 1, 1e300)
  expectRefusal("<< INDEX 1 GREATER THAN INDEX 2 >>", all, "TLX_conman_status", 5, 3)
  expectRefusal("<< INDEX 1 GREATER THAN INDEX 2 >>", nil, "TLX_conman_status", 1e300, -1e300)
  expectRefusal("<< NO ARRAY >>", all, "TLX_U1_prim", 0, 999)
  expectRefusal("<< NO ARRAY >>", nil, "TLX_Language")
  expectRefusal("<< SYNTAX ERROR ('no_such') >>", nil, "TLX_no_such")
  expectRefusal("<< SYNTAX ERROR ('an_status') >>", all, "conman_status", 1, 2)
  for _, name in ipairs {"TLX", "", {}, false} do expectRefusal("<< SYNTAX ERROR ('') >>", all, name, 1, 1) end
  expectRefusal("<< SYNTAX ERROR ('" .. ("x"):rep(99 - 18), all, "TLX_" .. ("x"):rep(5000), 1, 1)

  equal(double.get(all, "LVR_CONMAN_Status", 247.9, "247"), 1, "one element, through the other table")
  equal(long.getitem(all, 0), 247 * 247 % 1000, "that element")
  equal(long.getitem(all, 1), 4, "the element behind it stays")
  for _, name in ipairs {"TLX_vMWR", "TLX_SLvMWW"} do
    equal(double.get(double.new(0), name, 97, 96), 0, "nothing behind the end of " .. name)
    equal(double.get(double.new(0), name, 1, 0), 0, "nothing before the start of " .. name)
  end
end)

case("100,000 calls with anything leave every array as expected", function()
  math.randomseed(20240517)
  local random = math.random
  local arrays = {}
  local function make(functions, size, truncates)
    local model = {functions = functions, array = functions.new(size), size = size, truncates = truncates}
    for i = 0, size - 1 do model[i] = 0 end
    arrays[#arrays + 1] = model
  end
  for _ = 1, 20 do
    make(long, random(0, 100), true)
    make(double, random(0, 100), false)
  end
  local stored = {TLX_vMWR = {}, TLX_conman_status = {}} -- what is read from the parameters
  for name, values in pairs(stored) do
    for i = 1, name == "TLX_vMWR" and 96 or 247 do
      values[i] = random(1, 1000)
      talux_command(("%s %d=%d"):format(name, i, values[i]))
    end
  end
  local modelOf = {}
  for _, model in ipairs(arrays) do modelOf[model.array] = model end

  local oddities = {io.stdout, light, "", "text", "TLX_vMWR", "TLX_conman_status", "TLX_U1_prim", {}, print, false,
                    true, -1, 0.5, 2^31, -2^31, 2^32, 2^53, 1e300, -1e300, 1/0, 0/0, coroutine.create(print)}
  local function anything()
    if random() < 0.4 then return random(-2, 110) end
    if random() < 0.5 then return arrays[random(#arrays)].array end
    return oddities[random(#oddities + 1)] -- sometimes nil
  end
  local function truncated(value) return value < 0 and math.ceil(value) or math.floor(value) end

  local successes = 0
  local function setAny()
    local model, index, value = arrays[random(#arrays)], random(-3, 105), random() * 2000 - 1000
    if pcall(model.functions.setitem, model.array, index, value) then
      successes = successes + 1
      model[index] = model.truncates and truncated(value) or value
    end
  end
  local function get(functions, array, name, first, last)
    local good, count = pcall(functions.get, array, name, first, last)
    if not good or not count then return end
    successes = successes + 1
    for i = 1, count do modelOf[array][i - 1] = stored[name][math.floor(first) + i - 1] end
  end
  local function readAny()
    local model = arrays[random(#arrays)]
    local name = model.truncates and "TLX_conman_status" or "TLX_vMWR"
    get(model.functions, model.array, name, random(-1, 98), random(-1, 98))
  end
  local calls = {setAny, readAny}
  for _, functions in ipairs {long, double} do
    for _, name in ipairs {"new", "size", "getitem"} do
      calls[#calls + 1] = function() pcall(functions[name], anything(), anything(), anything()) end
    end
    calls[#calls + 1] = function() get(functions, anything(), anything(), anything(), anything()) end
    -- What is no array, or no number, is never stored into.
    calls[#calls + 1] = function()
      pcall(functions.setitem, oddities[random(#oddities)], anything(), anything())
      pcall(functions.setitem, anything(), anything(), {})
    end
  end
  for _ = 1, 100000 do calls[random(#calls)]() end

  equal(successes > 5000, true, "calls that succeeded")
  for n, model in ipairs(arrays) do
    equal(model.functions.size(model.array), model.size, "size of array " .. n)
    for i = 0, model.size - 1 do
      equal(model.functions.getitem(model.array, i), model[i], ("array %d, element %d"):format(n, i))
    end
  end
end)

check.finish()
