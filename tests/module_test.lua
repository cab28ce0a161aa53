-- Arrays of longs and doubles: 100,000 calls with whatever a script can pass against a model of all functions.
require "lib_talux_lua"
local check = dofile(arg[0]:match(".*/") .. "check.lua")
local equal, case = check.equal, check.case
local random = math.random
math.randomseed(20240517)

local function clamp(value, low, high) return value < low and low or value > high and high or value end
local function truncated(value) -- to 32 bits
  if value ~= value then return 0 end
  value = clamp(value, -2^31, 2^31 - 1)
  return value < 0 and math.ceil(value) or math.floor(value)
end

-- Parameters by their names in small letters: kind and values of the elements; no values: a scalar.
local parameters = {conman_status = {kind = "long", count = 247}, vmwr = {kind = "double", count = 96},
                    slvmww = {kind = "double", count = 96}, ovr_mw_val = {kind = "float", count = 32},
                    u1_prim = {}, [""] = {}}
for name, parameter in pairs(parameters) do
  for i = 1, parameter.count or 0 do
    parameter[i] = random(1, 1000)
    talux_command(("TLX_%s %d=%d"):format(name, i, parameter[i]))
  end
end

local tables = {long = talux_longarray, double = talux_doublearray}
local arrays, modelOf = {}, {} -- an array's model: kind, size, elements from 0 on
local lastError = ""

-- What each function must return: results, or nil and the text of an error after "bad argument ".
local function get(array, name, first, last)
  local function refuse(text) lastError = text:sub(1, 99) end
  local text = (type(name) == "string" or type(name) == "number") and tostring(name) or ""
  local shown = text:match("^[^%z]*")
  first, last = truncated(tonumber(first) or 0), truncated(tonumber(last) or 0)
  local parameter = #text >= 4 and shown == text and parameters[text:sub(5):lower()]
  if not parameter then return refuse(("<< SYNTAX ERROR ('%s') >>"):format(shown:sub(5))) end
  if not parameter.count then return refuse "<< NO ARRAY >>" end
  if first < 1 then return refuse "<< MIN ID TOO LOW >>" end
  if last > parameter.count then return refuse "<< MAX ID TOO HIGH >>" end
  local count, model = last - first + 1, modelOf[array]
  if count < 0 then return refuse "<< INDEX 1 GREATER THAN INDEX 2 >>" end
  if parameter.kind == "float" then return refuse "<< DATATYPE UNKNOWN >>" end
  if not model or model.kind ~= parameter.kind then return refuse "<< WRONG DATA TYPE >>" end
  if count > model.size then return refuse "<< ARRAYSIZE EXCEEDED >>" end
  for i = 1, count do model[i - 1] = parameter[first + i - 1] end
  return count
end
local function expected(kind, name, n, ...)
  local arguments = {...}
  local function number(k)
    local what = k > n and "no value" or type(arguments[k])
    return tonumber(arguments[k]), ("#%d (number expected, got %s)"):format(k, what)
  end
  local model = modelOf[arguments[1]]
  if model and model.kind ~= kind then model = nil end
  if name == "get" then return get(...) end
  if name == "new" then
    local size, text = number(1)
    if not size then return nil, text end
    if not (size > -1 and size <= 2^16) then return nil, "#1 (size out of range)" end
    return "array"
  end
  if name == "size" then
    if not model then return nil, ("#1 ('_talux_%sarray' expected)"):format(kind) end
    return model.size
  end
  local index, text = number(2)
  if not index then return nil, text end
  local value
  if name == "setitem" then
    value, text = number(3)
    if not value then return nil, text end
  end
  local underscore = name == "setitem" and "_" or ""
  if not model then return nil, ("#1 ('%stalux_%sarray' expected)"):format(underscore, kind) end
  if index < 0 or index >= model.size then return nil, "#2 (index out of range)" end
  if name == "getitem" then return model[index] end
  model[index] = kind == "long" and truncated(value) or value
end

local light = debug.upvalueid(function() return check end, 1)
local oddities = {io.stdout, light, {}, print, true, false, "", "TLX", "text", "7", " 0x2 ", "-1", "TL\0_vMWR",
                  "TLX_vMWR\0", "TLX_", ("x"):rep(5000), -1, 2^31 - 1, -2^31}
local names = {"TLX_vMWR", "LVR_conman_STATUS", "abcdslvmww", "TLX_OVR_MW_val", "TLX_U1_prim", "TLX_no_such"}
local hugeNumbers = {2^31, 2^32 + 3, 2^53, 1e300, -1e300, 1/0, -1/0, 0/0}
local function any(list) return list[random(#list)] end
local function anything()
  local kind = random()
  if kind < 0.5 then return random(-2, 110) end
  if kind < 0.8 and #arrays > 0 then return any(arrays) end
  if kind < 0.9 then return any(names) end
  return oddities[random(#oddities + 1)] -- sometimes nil
end
local function mostly(low, high) return random() < 0.8 and random(low, high) or any(hugeNumbers) end

-- Where integers have 32 bits, Lua itself cuts an index beyond them.
local isCut = ("x"):byte(2^32 + 1)
-- Their number, then mostly what the function wants.
local function argumentsOf(name)
  if random() < 0.3 then return random(0, 4), anything(), anything(), anything(), anything() end
  if name == "new" then return 1, random() < 0.5 and mostly(0, 260) or anything() end
  if name == "get" then return 4, any(arrays), any(names), mostly(0, 98) + any {0, 0.9}, mostly(0, random(2) * 120) end
  local index = not isCut and random() < 0.02 and 2^32 + random(0, 9) or random(-1, 100)
  return name == "setitem" and 3 or name == "getitem" and 2 or 1, any(arrays), index,
         random() < 0.5 and mostly(-5e9, 5e9) or anything()
end
local function outcome(good, ...)
  -- Lua names the function as it finds it, or by a question mark.
  if not good then return nil, tostring(...):gsub(" to '[^']*'", ""):gsub("^bad argument ", "") end
  return select("#", ...) == 0 and nil or ...
end

case("every function does what the model does", function()
  local functions, counts = {"new", "size", "setitem", "getitem", "get"}, {}
  for call = 1, 100000 do
    local kind, name = random() < 0.5 and "long" or "double", call < 20 and "new" or functions[random(5)]
    local list = table.pack(argumentsOf(name))
    local n = list[1]
    for k = n + 2, 5 do list[k] = nil end
    local wanted, wantedText = expected(kind, name, n, table.unpack(list, 2, n + 1))
    local got, gotText = outcome(pcall(tables[kind][name], table.unpack(list, 2, n + 1)))
    if wanted == "array" and type(got) == "userdata" then
      local model = {kind = kind, size = truncated(tonumber(list[2]))}
      for i = 0, model.size - 1 do model[i] = 0 end
      if #arrays < 40 then arrays[#arrays + 1], modelOf[got] = got, model end
      wanted = got
    end
    local what = ("%s %s, call %d"):format(kind, name, call)
    equal(got, wanted, what)
    equal(gotText, wantedText, what)
    equal(talux_getlasterror(), lastError, "last error after " .. what)
    local refusal = name == "get" and not wanted and lastError:sub(1, 12)
    local way = wantedText and name .. wantedText:sub(1, 12) or refusal or name
    counts[way] = (counts[way] or 0) + 1
  end
  for _, way in ipairs {"new", "size", "setitem", "getitem", "get", "<< MIN ID TO", "<< MAX ID TO", "<< INDEX 1 G",
                        "<< ARRAYSIZE", "<< WRONG DAT", "<< DATATYPE ", "<< NO ARRAY ", "<< SYNTAX ER", "new#1 (size out", "getitem#2 (index ou", "setitem#1 ('_talux_"} do
    equal((counts[way] or 0) > 30, true, way .. " taken " .. (counts[way] or 0) .. " times")
  end
end)

check.finish()
