-- What a parameter file holds after a save, which may have failed although it was answered as done.
local dictionary = require "talux.dictionary"
local numbers = require "talux.numbers"

local files = {}

-- A text as a file holds it: addresses are normalised.
local function asInFile(text) return (text:gsub("%f[%d]0+(%d)", "%1"):gsub('^"0%.0%.0%.0"$', '""')) end

local function agree(a, b)
  local value = numbers.read(a)
  return value and value == numbers.read(b) or asInFile(a) == asInFile(b)
end

---The first setting that a file does not hold as it is now.
---@param name string
---@return string?
function files.lost(name)
  local file, held = assert(io.open("/" .. name)), {}
  for line in file:lines() do
    local parameter, value = line:match "^TLX_([%w_]+)=(.*)$"
    if parameter then held[parameter] = value end
  end
  file:close()
  local rows, queries = dictionary.settings()
  for k, row in ipairs(rows) do
    if row.file == name and not agree(talux_command(queries[k]), held[row.name] or "") then return row.name end
  end
end

return files
