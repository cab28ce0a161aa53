-- What a value must be before it is written. A check returns the text for the line and the value as the store
-- will hold it, or nil and the reason.
local dictionary = require "talux.dictionary"
local numbers = require "talux.numbers"

local checks = {}

---The permitted range with its unit, in brackets.
---@param min? number
---@param max? number
---@param unit? string
---@return string
function checks.range(min, max, unit)
  local text = "-999999999 to 999999999"
  if min and max then text = ("%.10g to %.10g"):format(min, max)
  elseif max then text = ("up to %.10g"):format(max)
  elseif min then text = ("from %.10g"):format(min) end
  return (" (%s%s)"):format(text, unit and " " .. unit or "")
end

-- The number that a choice, a switch or a text means, or nil and the reason.
local function numberOf(row, value)
  if type(value) == "boolean" and row.kind == "bool" then return value and 1 or 0 end
  if type(value) ~= "string" then return nil, "NOT A NUMBER" end
  if row.kind == "enum" then return dictionary.choice(row, value) end
  if value:find "," then return nil, "NOT A NUMBER (a number has a point)" end
  return value:find "^%s*[-+]?%.?%d[%d.eE+-]*%s*$" and numbers.read(value), "NOT A NUMBER"
end

local function checkNumber(row, value)
  local min, max, kind, reason = row.min or -999999999, row.max or 999999999, row.kind
  if type(value) ~= "number" then value, reason = numberOf(row, value) end
  if not value or value ~= value then return nil, reason or "NOT A NUMBER" end
  reason = value < min and "VALUE TOO LOW" or value > max and "VALUE TOO HIGH"
    or value % 1 ~= 0 and kind ~= "float" and kind ~= "double" and "NOT A WHOLE NUMBER"
  if reason then return nil, reason .. checks.range(row.min, row.max, row.unit) end
  return numbers.write(value), kind == "float" and numbers.single(value) or value
end

local function isAddress(text)
  local parts = {text:match "^(%d+)%.(%d+)%.(%d+)%.(%d+)$"}
  local value = 0
  for _, part in ipairs(parts) do
    if part:find "^0%d" or tonumber(part) > 255 then return false end
    value = value * 256 + part
  end
  return #parts == 4, value
end

local function isMask(text)
  local good, value = isAddress(text)
  return good and math.frexp(2 ^ 32 - value) == 0.5 -- a power of two
end

local function isDate(text)
  local year, month, day = text:match "^(%d%d%d%d)-(%d%d)-(%d%d)$"
  return year and os.date("%Y-%m-%d", os.time {year = year, month = month, day = day}) == text
end

local function isTime(text)
  local hour, minute, second = text:match "^(%d%d):(%d%d):(%d%d)$"
  return hour and tonumber(hour) < 24 and tonumber(minute) < 60 and tonumber(second) < 60
end

local forms = {
  address = {isAddress, "NO ADDRESS (four numbers from 0 to 255 as in 192.168.1.10)"},
  netmask = {isMask, "NO NETMASK (ones before zeros as in 255.255.255.0)"},
  date = {isDate, "NO DATE (as 2024-05-17)"},
  time = {isTime, "NO TIME (as 10:20:30)"},
}
local signs = {[","] = "A COMMA", ["="] = "AN EQUALS SIGN", ['"'] = "A DOUBLE QUOTE"}

---Whether a line can carry a text.
---@param row talux.Row
---@param text string
---@return string? quoted
---@return string? reason
function checks.carried(row, text)
  local odd = text:match '[,="%z\1-\31]'
  if odd then return nil, "A LINE CANNOT CARRY " .. (signs[odd] or "A CONTROL CHARACTER") end
  local characters = select(2, text:gsub("[^\128-\191]", ""))
  if characters > row.length then
    return nil, ("TEXT TOO LONG (%d characters, at most %d)"):format(characters, row.length)
  elseif #text > row.bytes then
    return nil, ("TEXT TOO LONG (%d bytes, at most %d)"):format(#text, row.bytes)
  end
  return '"' .. text .. '"'
end

local function checkText(row, value)
  if type(value) ~= "string" then return nil, "NOT A TEXT" end
  local quoted, reason = checks.carried(row, value)
  if not quoted then return nil, reason end
  local form = forms[row.form == "netmask" and not isAddress(value) and "address" or row.form]
  if form and not form[1](value) then return nil, form[2] end
  return quoted, value
end

---@param row talux.Row
---@param value any
---@return string? text
---@return any storedOrReason
function checks.value(row, value)
  if row.kind == "record" or row.kind == "command" then return nil, ("A %s KEEPS NO VALUE"):format(row.kind:upper()) end
  if not row.level then return nil, "VARIABLE IS READ ONLY" end
  if row.length then return checkText(row, value) end
  return checkNumber(row, value)
end

---@param row talux.Row
---@param index any
---@return string? reason
function checks.index(row, index)
  if not row.first then return index and "NO INDEX ALLOWED" or nil end
  local reason = not index and "INDEX REQUIRED"
    or (type(index) ~= "number" or index % 1 ~= 0) and "INDEX MUST BE A WHOLE NUMBER"
    or index < row.first and "INDEX TOO LOW" or index > row.last and "INDEX TOO HIGH"
  return reason and reason .. checks.range(row.first, row.last) or nil
end

return checks
