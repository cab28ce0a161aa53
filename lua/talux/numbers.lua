-- Numbers between Lua, the language and the store. The language writes a point whatever the locale of the
-- process, and many parameters are 32-bit floats.
local numbers = {}

local abs, byte, find, floor, frexp, max = math.abs, string.byte, string.find, math.floor, math.frexp, math.max

local notFinite = {inf = 1 / 0, infinity = 1 / 0, nan = 0 / 0}

---The number that an answer of the language or a value in a file is.
---@param text string
---@return number?
function numbers.read(text)
  local value = tonumber(text)
  if value then return value end
  local point = ("%.1f"):format(0.5):match "0(.*)5"
  value = tonumber((text:gsub("%.", point)))
  if value then return value end
  local sign, name = text:lower():match "^%s*([-+]?)(%a+)%s*$"
  value = notFinite[name]
  return value and sign == "-" and -value or value
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
  local nearest = low * step
  return abs(nearest) < 2 ^ 128 and nearest or nearest / 0 -- infinite beyond the range
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
  if exponent == 0 then return sign * fraction * 2 ^ -149 end
  return sign * (fraction + 0x800000) * 2 ^ (exponent - 150)
end

-- The values of hexadecimal digits by their codes; a list without gaps is faster.
local digits = {}
for code = 1, 70 do digits[code] = tonumber(string.char(code), 16) or 0 end

---What the option -h shows of 32-bit numbers, the lowest byte first: floats as a list, or the members of a record.
---@param answer string
---@param members? {name: string, kind: string}[]
---@return table<integer|string, number>
function numbers.fromBytes(answer, members)
  local values, start = {}, (find(answer, "\n", 1, true) or 0) - 7 -- a line before the digits says what they are
  for k = 1, (#answer - start - 7) / 8 do
    local a, b, c, d, e, f, g, h = byte(answer, start + 8 * k, start + 8 * k + 7)
    local low = ((digits[c] * 16 + digits[d]) * 16 + digits[a]) * 16 + digits[b]
    local bits = (((digits[g] * 16 + digits[h]) * 16 + digits[e]) * 16 + digits[f]) * 0x10000 + low
    local member = members and members[k]
    if not member then values[k] = asFloat(bits)
    elseif member.kind == "float" then values[member.name] = asFloat(bits)
    else values[member.name] = bits < 0x80000000 and bits or bits - 0x100000000 end
  end
  return values
end

return numbers
