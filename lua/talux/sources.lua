-- Settings of files that are not loaded, of the factory and of the working copy.
local dictionary = require "talux.dictionary"
local numbers = require "talux.numbers"

local sources = {}

-- Bytes of a text that the store holds; of all others 127.
local sizes = {identifier = 19, address = 19, ["interface address"] = 19, ["interface netmask"] = 19,
               ["interface gateway"] = 19, ["date of the clock"] = 14, ["time of the clock"] = 9}

-- What the slots of whole numbers hold of one, which passes through 32 bits.
local slots = {bool = {0, 0xFFFFFFFF, 256, 0}, long = {-0x80000000, 0x7FFFFFFF, 2 ^ 32, 2 ^ 31},
               int = {-0x80000000, 0x7FFFFFFF, 2 ^ 16, 2 ^ 15}}
slots.enum = slots.int

-- A number as the store holds it: whole ones without their fraction.
local function storedNumber(row, text)
  local word, slot = text:match "^ *([^ ]*)", slots[row.kind]
  local value = #text <= 49 and not word:find "," and not word:find "%s$" and numbers.read(word)
  if not value or row.kind == "double" then return value or nil end
  if not slot then return numbers.shortest(numbers.single(value)) end
  if value ~= value then return 0 end -- not a number
  value = math.min(math.max(value, slot[1]), slot[2])
  return (value - math.fmod(value, 1) + slot[4]) % slot[3] - slot[4]
end

-- What a load would store of a line: the name in the dictionary and the value; nothing if it skips the line.
local function storedOf(line)
  line = line:match "^[^\0]*"
  local name, rest = line:match "^[ \t]*[Tt][Ll][Xx]_([^ =]*)(.*)$"
  local row = dictionary.row(name)
  if not row or not row.default then return end
  local text = rest:match "^ *=+(.*)$" or rest:sub(2) -- a name alone is that of an empty text
  if text:sub(1, 1) == '"' then text = text:match '^"([^"=]*)'
  else text = ("%s#"):format(text:match "^[^=\r]*"):gsub("//", "#"):match "^[^#;]*" end
  if row.length then return row.name, text:sub(1, sizes[row.kind] or 127) end
  return row.name, storedNumber(row, text)
end

local function readFile(path, settings)
  local file, reason = io.open(path)
  if not file then return nil, reason end
  local text, failure = file:read "*a"
  file:close()
  if not text then return nil, path .. ": " .. failure end
  for line in text:gmatch "[^\n]+" do
    for at = 1, #line, 254 do -- the rest of a longer line is one of its own
      local name, value = storedOf(line:sub(at, at + 253))
      if name and value then settings[name] = value end
    end
  end
  return settings
end

---The settings that a source holds: "default", "staged", the path of a file or of a folder with the three.
---@param source string
---@param read fun(line: string): any by which a setting of the working copy is read
---@return table<string, any>? settings by name
---@return string? reason
function sources.read(source, read)
  local settings = {}
  if source == "default" or source == "staged" then
    local rows, queries = dictionary.settings()
    for k, row in ipairs(rows) do settings[row.name] = source == "default" and row.default or read(queries[k]) end
    return settings
  end
  local found, reason = readFile(source, settings)
  if found then return settings end
  for _, name in ipairs {"parameter.ini", "sec_parameter.ini", "ip_config.ini"} do
    found = readFile(source .. "/" .. name, settings) or found
  end
  return found, reason
end

---In which settings that both hold b differs from a, in the order of the menus; the clock's two are left out.
---@param a table<string, any>
---@param b table<string, any>
---@return talux.Change[]
function sources.differences(a, b)
  local changes = {}
  for _, row in ipairs(dictionary.settings()) do
    local old, new = a[row.name], b[row.name]
    if old ~= nil and new ~= nil and old ~= new then
      local areNan = old ~= old and new ~= new
      local isSame = areNan or row.kind == "float" and numbers.single(old) == numbers.single(new)
      if not isSame then changes[#changes + 1] = {name = row.name, old = old, new = new} end
    end
  end
  return changes
end

return sources
