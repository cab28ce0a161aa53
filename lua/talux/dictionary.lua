-- What is known of parameters: the tables that the build adds, each read when it is first asked for.
local dictionary = {}

---@class talux.Row
---@field name string
---@field id integer
---@field kind string
---@field unit? string
---@field min? number
---@field max? number
---@field length? integer longest text in characters
---@field bytes? integer and in bytes, which fit into the store and a line
---@field form? "address"|"netmask"|"date"|"time" of a text
---@field first? integer first and last element of an indexed parameter
---@field last? integer
---@field default? number|string factory default of a setting
---@field file? string that holds the setting
---@field level? integer rights that a write takes; absent where nothing can be written

-- Rows by their names in lower case and as they have been asked for, their positions in the menus, settings.
local byName, positions, settings, queries

local function load()
  byName, positions, settings, queries = {}, {}, {}, {}
  for position, row in ipairs(require "talux.parameters") do
    byName[row.name:lower()], positions[row] = row, position
    if row.default and row.form ~= "date" and row.form ~= "time" then
      settings[#settings + 1], queries[#queries + 1] = row, "TLX_" .. row.name
    end
  end
end

---The row of a parameter; letter case does not matter.
---@param name any
---@return talux.Row?
function dictionary.row(name)
  if not byName then load() end
  if not byName[name] and type(name) == "string" then byName[name] = byName[name:lower()] end
  return byName[name]
end

---The settings without the clock, which shows its time whatever is stored.
---@return talux.Row[]
---@return string[] lines that read them
function dictionary.settings()
  if not settings then load() end
  return settings, queries
end

---The row of NAME[index] where it is a parameter of its own: BAassign3, prio_list_3.
---@return talux.Row?
function dictionary.rowInSeries(name, index)
  return dictionary.row(name .. tostring(index)) or dictionary.row(name .. "_" .. tostring(index))
end

---The position of a row in the menus.
---@param row talux.Row
---@return integer
function dictionary.position(row) return positions[row] end

---Titles, descriptions, choices and notes by the name of the parameter.
---@param language "de"|"en"
---@return table<string, {[1]: string, [2]: string, [3]: table<integer, string>?, notes: table?}>
function dictionary.texts(language) return require("talux.parameters_" .. language) end

-- The numbers of choices by their texts, made for each list when it is first asked for; false where a text
-- stands for several.
local numbersOf = setmetatable({}, {__mode = "k", __index = function(known, choices)
  local numbers = {}
  for k, text in pairs(choices) do numbers[text] = numbers[text] == nil and k end
  known[choices] = numbers
  return numbers
end})

---The number of a choice by its text in either language, or a reason.
---@param row talux.Row
---@param text string
---@return integer?
---@return string? reason
function dictionary.choice(row, text)
  local de = numbersOf[dictionary.texts("de")[row.name][3] or {}][text]
  local en = numbersOf[dictionary.texts("en")[row.name][3] or {}][text]
  if (de or en) ~= (en or de) or de == false or en == false then
    return nil, "STANDS FOR SEVERAL CHOICES (give the number)"
  end
  return de or en, "NO SUCH CHOICE"
end

-- How many characters have to be changed, added, dropped or exchanged with their neighbour.
local function distance(a, b)
  local before, above = {}, {}
  for j = 0, #b do above[j] = j end
  for i = 1, #a do
    local row = {[0] = i}
    for j = 1, #b do
      local x, y = a:byte(i), b:byte(j)
      row[j] = math.min(above[j - 1] + (x == y and 0 or 1), above[j] + 1, row[j - 1] + 1)
      if j > 1 and before[j] and x == b:byte(j - 1) and y == a:byte(i - 1) then
        row[j] = math.min(row[j], before[j - 2] + 1)
      end
    end
    before, above = above, row
  end
  return above[#b]
end

---The reason why a name is none, with the nearest one: "NO SUCH PARAMETER (Uearth?)".
---@param name any
---@return string
function dictionary.unknown(name)
  local wanted = tostring(name):lower():gsub("^tlx_", ""):gsub("^lvr_", "")
  local limit, best = math.max(1, math.floor(#wanted / 3)) + 1, nil
  for _, row in ipairs(require "talux.parameters") do
    if math.abs(#row.name - #wanted) < limit then
      local steps = distance(wanted, row.name:lower())
      if steps < limit then limit, best = steps, row.name end
    end
  end
  return "NO SUCH PARAMETER" .. (best and (" (%s?)"):format(best) or "")
end

return dictionary
