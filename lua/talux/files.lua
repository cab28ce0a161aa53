-- What a parameter file holds after a save, which can fail and be answered as done.
local dictionary = require "talux.dictionary"
local numbers = require "talux.numbers"

local files = {}

-- A text as a file holds it: addresses are normalised.
local function asInFile(text) return (text:gsub("%f[%d]0+(%d)", "%1"):gsub('^"0%.0%.0%.0"$', '""')) end

local function agree(a, b)
  local value = numbers.read(a)
  return value and value == numbers.read(b) or asInFile(a) == asInFile(b)
end

local function linesOf(path)
  local file, values = assert(io.open(path)), {}
  for line in file:lines() do
    local name, value = line:match "^TLX_([%w_]+)=(.*)$"
    if name then values[name] = value end
  end
  file:close()
  return values
end

---The first setting that a file does not hold as it is now.
---@param name string
---@return string?
function files.lost(name)
  local held = linesOf("/" .. name)
  for _, row in ipairs(require "talux.parameters") do
    if row.file == name and not dictionary.isClock(row)
      and not agree(talux_command("TLX_" .. row.name), held[row.name] or "") then return row.name end
  end
end

return files
