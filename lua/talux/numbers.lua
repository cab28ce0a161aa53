-- Numbers between Lua, the language and the store. The language writes a point whatever the locale of the
-- process, and many parameters are 32-bit floats.
local numbers = {}

local find, floor, frexp, ldexp, max = string.find, math.floor, math.frexp, math.ldexp, math.max

local notFinite = {inf = 1 / 0, ["-inf"] = -1 / 0, nan = 0 / 0}

---The number that an answer of the language begins with.
---@param text string
---@return number?
function numbers.read(text)
  local value = tonumber(text)
  if value then return value end
  local point = ("%.1f"):format(0.5):match "0(.*)5"
  return tonumber((text:gsub("%.", point))) or notFinite[text:match "^%S*"]
end

---The text of a number with all its digits, or in another format.
---@param value number
---@param format? string
---@return string
function numbers.write(value, format)
  local text = (format or "%.17g"):format(value)
  return find(text, "^[%w+.-]*$") and text or (text:gsub("[^%w+-]+", "."))
end

---The 32-bit float nearest to a number, which is what the store keeps of it.
---@param value number
---@return number
function numbers.single(value)
  if value == 0 or value - value ~= 0 then return value end
  local _, exponent = frexp(value)
  local step = 2 ^ (max(exponent, -125) - 24)
  local scaled = value / step
  local low = floor(scaled)
  local rest = scaled - low
  if rest > 0.5 or rest == 0.5 and low % 2 == 1 then low = low + 1 end
  return low * step
end

---The shortest number that is stored as this 32-bit float: 0.2 for 0.20000000298.
---@param value number
---@return number
function numbers.shortest(value)
  if value % 1 == 0 then return value end
  for _, format in ipairs {"%.6g", "%.7g", "%.8g"} do
    local short = numbers.read(numbers.write(value, format))
    if numbers.single(short) == value then return short end
  end
  return value
end

-- Of the 32 bits of a float, read as a whole number.
local function asFloat(bits)
  local sign = 1
  if bits >= 0x80000000 then sign, bits = -1, bits - 0x80000000 end
  local fraction = bits % 0x800000
  local exponent = (bits - fraction) / 0x800000
  if exponent == 255 then return fraction == 0 and sign / 0 or 0 / 0 end
  if exponent == 0 then return sign * ldexp(fraction, -149) end
  return sign * ldexp(fraction + 0x800000, exponent - 150)
end

---What the option -h shows of 32-bit numbers, the lowest byte first: floats, and longs where the members are.
---@param hex string
---@param members? {kind: string}[]
---@return number[]
function numbers.fromBytes(hex, members)
  local values, k = {}, 0
  for word in hex:gsub("(%x%x)(%x%x)(%x%x)(%x%x)", "%4%3%2%1 "):gmatch "%x+" do
    local bits = tonumber(word, 16)
    k = k + 1
    if not members or members[k].kind == "float" then values[k] = asFloat(bits)
    else values[k] = bits < 0x80000000 and bits or bits - 0x100000000 end
  end
  return values
end

return numbers
