-- Changes as a text to print.
local dictionary = require "talux.dictionary"
local numbers = require "talux.numbers"

-- The number of characters in UTF-8.
local function width(text) return select(2, text:gsub("[^\128-\191]", "")) end
local function padded(text, columns) return text .. (" "):rep(columns - width(text)) end

local function inWords(value, choices)
  if type(value) ~= "number" then return '"' .. tostring(value) .. '"' end
  local text = numbers.write(value, "%.10g")
  return choices and choices[value] and ("%s (%s)"):format(text, choices[value]) or text
end

---One change in a line: name, title, old and new value with choice texts and unit.
---@param changes talux.Change[]
---@param texts table as dictionary.texts gives them
---@return string
return function(changes, texts)
  local lines, columns = {}, {0, 0}
  for k, change in ipairs(changes) do
    local row = dictionary.row(change.name)
    if not row then error(("%s: %s"):format(tostring(change.name), dictionary.unknown(change.name)), 3) end
    local title, choices = texts[row.name][1], row.kind == "enum" and texts[row.name][3]
    local label = change.index and ("%s[%d]"):format(row.name, change.index) or row.name
    local unit = row.unit and " " .. row.unit or ""
    lines[k] = {label, title, inWords(change.old, choices), inWords(change.new, choices) .. unit}
    columns = {math.max(columns[1], width(label)), math.max(columns[2], width(title))}
  end
  for k, line in ipairs(lines) do
    lines[k] = ("%s  %s  %s -> %s"):format(padded(line[1], columns[1]), padded(line[2], columns[2]), line[3], line[4])
  end
  return table.concat(lines, "\n")
end
