-- The parameters of the relay as Lua values: read as numbers and texts, written with checks and all or none,
-- described in words. A layer over the module lib_talux_lua that stores nothing itself.
require "lib_talux_lua"
local checks = require "talux.checks"
local dictionary = require "talux.dictionary"
local files = require "talux.files"
local numbers = require "talux.numbers"
local protocol = require "talux.protocol"
local sources = require "talux.sources"
local stopwatch = require "talux.stopwatch"

local command, find, abs, tonumber, type = talux_command, string.find, math.abs, tonumber, type

---@class talux
local talux = {}

-- ---- Lines of the language ----

local refusals = {"^<< ", "^error: ", "^sec error: ", "^type unknown$", "^command required", "^Division durch 0$",
                  "^Quadratwurzel von "}

---Evaluates any line of KEPL.
---@param line string
---@return string? answer without its line end; nil after a refusal
---@return string? refusal
function talux.try(line)
  if type(line) ~= "string" and type(line) ~= "number" then error("a line expected", 2) end
  local answer = command(line):gsub("\n$", "")
  for _, refusal in ipairs(refusals) do
    if find(answer, refusal) then return nil, answer end
  end
  return answer
end

-- The words of a refusal without the angle brackets.
local function bare(refusal) return refusal:match "^<< (.-) >>" or refusal end

-- ---- Reading ----

local function valueOf(answer)
  if answer:byte() == 34 then return answer:sub(2, -2) end
  return numbers.read(answer)
end

local function read(line) return valueOf(command(line)) end

local arrays = {long = talux_longarray, double = talux_doublearray}

-- Elements of an indexed parameter by their numbers; long and double ones are read in one piece.
local function elements(row, first, last)
  local values, array = {}, arrays[row.kind]
  if array then
    local buffer = array.new(last - first + 1)
    array.get(buffer, "TLX_" .. row.name, first, last)
    for k = first, last do values[k] = array.getitem(buffer, k - first) end
  else
    local floats = numbers.fromBytes(command(("TLX_%s %d.%d -h"):format(row.name, first, last)))
    for k = first, last do values[k] = floats[k - first + 1] end
  end
  return values
end

-- The same of a series; nil, the reason and the name where a member is missing.
local function series(name, first, last)
  local values = {}
  for k = first, last do
    local row = dictionary.rowInSeries(name, k)
    if not row then return nil, dictionary.unknown(name .. tostring(k)), name .. tostring(k) end
    values[k] = read("TLX_" .. row.name)
  end
  return values
end

-- Why a name alone gives no value.
local function whyNot(name)
  local row = dictionary.row(name)
  if not row then return dictionary.unknown(name) end
  return checks.index(row) or row.kind == "record" and "A RECORD" or bare(command("TLX_" .. name))
end

local anySeries = {first = 0, last = 999}

local function range(name, first, last)
  local row = dictionary.row(name)
  local reason = checks.index(row or anySeries, first) or checks.index(row or anySeries, last)
  if not reason and last < first then reason = "INDEX 1 GREATER THAN INDEX 2" end
  if reason then return nil, reason end
  return (row and elements or series)(row or tostring(name), first, last)
end

-- The lines that read parameters, by the names that were asked for.
local queries = {}

---The value of a parameter: a number, for a choice its number, or a text. With `first` that element of an
---indexed parameter or of a series (BAassign, 3), with `first` and `last` a table of elements by their numbers.
---@param name string
---@param first? integer
---@param last? integer
---@return any
function talux.get(name, first, last)
  local line = not first and queries[name]
  if line then
    local answer = command(line)
    return tonumber(answer) or valueOf(answer)
  end
  local value, reason, missing
  if first then
    value, reason, missing = range(name, first, last or first)
    if value and not last then value = value[first] end
  else
    value = type(name) == "string" and find(name, "^[%w_]+$") and read("TLX_" .. name) or nil
    if value then queries[name] = "TLX_" .. name else reason = whyNot(name) end
  end
  if value == nil then error(("%s: %s"):format(missing or tostring(name), reason), 2) end
  return value
end

---The members of a record by their names.
---@param name "MessRecord01"|"MessRecord02"|"StatRecord_c0"
---@return table<string, number>
function talux.record(name)
  local row = dictionary.row(name)
  local members = row and (require "talux.records")[row.name]
  if not members then error(("%s: NO SUCH RECORD"):format(tostring(name)), 2) end
  return numbers.fromBytes(command("TLX_" .. row.name .. " -h"), members)
end

-- ---- Writing ----

---@class talux.Change
---@field name string
---@field index? integer of an element
---@field old any
---@field new any

-- What cannot be taken back comes last: the clock, then an address, which is applied and saved by its write.
local rank = {["date of the clock"] = 1, ["time of the clock"] = 1, ["interface address"] = 2}

local function labelOf(row, index) return index and ("%s[%s]"):format(row.name, tostring(index)) or row.name end

-- A value to write, or nil and the reason why it cannot be. The language prints six digits after the point, so a
-- multiple of a float is read.
local function entryFor(row, index, value)
  local text, new = nil, checks.index(row, index)
  if not new then text, new = checks.value(row, value) end
  if not text then return nil, new end
  local line = index and ("TLX_%s %d"):format(row.name, index) or "TLX_" .. row.name
  local query = row.kind == "float" and line .. ",0x1p40,*" or line
  return {row = row, index = index, line = line, query = query, text = text, new = new}
end

-- Finding the nearest name takes milliseconds: only the first of many unknown names get one.
local nearest = 4

-- All reasons why settings cannot be written, one per line.
local function reasonsOf(faults, unknown)
  table.sort(unknown, function(a, b) return a[1] < b[1] end)
  for k, fault in ipairs(unknown) do
    local reason = k <= nearest and dictionary.unknown(fault[1]) or "NO SUCH PARAMETER"
    faults[#faults + 1] = ("%s = %s: %s"):format(fault[1], tostring(fault[2]), reason)
  end
  table.sort(faults)
  return table.concat(faults, "\n")
end

-- One entry for each value to write, in the order of the writes, or nil and the reasons.
local function plan(settings)
  local entries, faults, unknown, taken = {}, {}, {}, {}
  local function add(name, row, index, value)
    if not row then unknown[#unknown + 1] = {name, value} return end
    local entry, reason = entryFor(row, index, value)
    local id = entry and row.id + (index or 1) - 1
    if entry and not taken[id] then
      taken[id], entries[#entries + 1] = true, entry
      entry.order = ((rank[row.kind] or 0) * 10000 + dictionary.position(row)) * 1000 + (index or 0)
    else
      faults[#faults + 1] = ("%s = %s: %s"):format(labelOf(row, index), tostring(value), reason or "NAMED TWICE")
    end
  end
  for name, value in pairs(settings) do
    local row = dictionary.row(name)
    if type(value) ~= "table" then add(tostring(name), row, nil, value)
    else
      for k, element in pairs(value) do
        if row then add(name, row, k, element)
        else add(tostring(name) .. tostring(k), dictionary.rowInSeries(tostring(name), k), nil, element) end
      end
    end
  end
  if #faults + #unknown > 0 then return nil, reasonsOf(faults, unknown) end
  table.sort(entries, function(a, b) return a.order < b.order end)
  return entries
end

-- The value in the store, after a term that writes it if one is given; nil and the answer when that is refused.
local function stored(entry, writing)
  local row, index = entry.row, entry.index
  if index then
    local refusal = writing and command(writing) or ""
    if refusal ~= "" then return nil, refusal end
    return elements(row, index, index)[index]
  end
  local answer = command(writing and writing .. "," .. entry.query or entry.query)
  local value = valueOf(answer)
  if not value or row.kind ~= "float" then return value, answer end
  if abs(value) > 1e7 then return value / 0x1p40 end
  return numbers.read(command(entry.line .. ",0x1p149,*")) / 0x1p149 -- a small one has digits left
end

local function seconds(time)
  local hour, minute, second = time:match "(%d+):(%d+):(%d+)"
  return hour * 3600 + minute * 60 + second
end

-- Whether what was found is a value, or the time of the clock soon after it.
local function is(entry, found, value)
  local isClock = found and entry.row.kind == "time of the clock"
  return found == value or isClock and (seconds(found) - seconds(value)) % 86400 < 5
end

-- Writes an entry; returns the reason if the store does not have it afterwards.
local function write(entry)
  local new, found, answer = entry.new, stored(entry, entry.line .. "=" .. entry.text)
  if is(entry, found, new) then return end
  if found == nil then return bare(answer) end
  return ("NOT STORED (reads %s)"):format(tostring(found))
end

-- Restores the old values of the first entries; names those that the store does not have afterwards.
local function takeBack(entries, last)
  local lost = {}
  for k = last, 1, -1 do
    local entry = entries[k]
    local row, old = entry.row, entry.old
    local text = type(old) == "number" and numbers.write(old) or row.length and checks.carried(row, old)
    if text and not rank[row.kind] then command(entry.line .. "=" .. text) end
    if not is(entry, stored(entry), old) then lost[#lost + 1] = labelOf(row, entry.index) end
  end
  return #lost > 0 and "; not taken back: " .. table.concat(lost, ", ") or ""
end

-- Executes a plan, all or none; nil and the reason when it fails.
local function carryOut(entries, reasons)
  if not entries then return nil, reasons end
  for k = 1, #entries do entries[k].old = stored(entries[k]) end
  for k = 1, #entries do
    local entry = entries[k]
    local reason = write(entry)
    if reason then
      reason = reason .. takeBack(entries, k)
      return nil, ("%s = %s: %s"):format(labelOf(entry.row, entry.index), tostring(entry.new), reason)
    end
  end
  return entries
end

---Writes a value: checked before, read back afterwards. An error says why not. Numbers with all their digits;
---choices by number or text; elements of an indexed parameter or a series as a table {[3] = ..}.
---@param name string
---@param value any
function talux.set(name, value)
  if value == nil then error(("%s = nil: NO VALUE"):format(tostring(name)), 2) end
  local row = type(value) ~= "table" and dictionary.row(name)
  local entry, done, reason = row and entryFor(row, nil, value)
  if entry then done, reason = carryOut {entry} else done, reason = carryOut(plan {[tostring(name)] = value}) end
  if not done then error(reason, 2) end
end

---Writes all values or none; an error names everything that is refused. Interface addresses go last, since
---writing one applies and saves it, which cannot be taken back.
---@param settings table<string, any>
---@return talux.Change[] without unchanged values; floats as they are usually written
function talux.apply(settings)
  if type(settings) ~= "table" then error("a table of settings expected", 2) end
  local entries, reason = carryOut(plan(settings))
  if not entries then error(reason, 2) end
  local changes = {}
  for _, entry in ipairs(entries) do
    local old, new = entry.old, entry.new
    if old ~= new then
      if entry.row.kind == "float" then old, new = numbers.shortest(old), numbers.shortest(new) end
      changes[#changes + 1] = {name = entry.row.name, index = entry.index, old = old, new = new}
    end
  end
  return changes
end

-- ---- Files and commit: an error when they fail ----

local function run(line, level)
  local answer, refusal = talux.try(line)
  if not answer then error(("%s: %s"):format(line, refusal), level + 1) end
end

-- By what follows "save" and "load" in the word.
local usualFiles = {[""] = "parameter.ini", _sec = "sec_parameter.ini", _ip = "ip_config.ini"}

-- A write that fails is answered as done, so this checks whether the file holds the settings as they are now.
local function save(word)
  run(word, 3)
  local name = usualFiles[word:sub(5)]
  local lost = files.lost(name)
  if lost then error(("%s: %s does not hold %s"):format(word, name, lost), 3) end
end

local function loadFile(word, file)
  if file and (type(file) ~= "string" or file == "" or file:find "[,%s%c]" or #word + #file > 126) then
    error(word .. ": no file name that a line can carry", 3)
  end
  local line = file and word .. " " .. file or word
  local found = io.open("/" .. (file or usualFiles[word:sub(5)]))
  if found then -- a folder, too, which would end the process
    local _, reason = found:read(0)
    found:close()
    if reason then error(("%s: %s"):format(line, reason), 3) end
  end
  run(line, 3)
end

---Makes pending settings live: everybody's, not only this script's.
function talux.update() run("update", 2) end

---Makes pending settings live and saves them to parameter.ini, sec_parameter.ini or ip_config.ini.
function talux.save() save "save" end
function talux.save_sec() save "save_sec" end
function talux.save_ip() save "save_ip" end

---Loads a file of the parameter directory and makes it live; without a name the usual one.
---@param file? string
function talux.load(file) loadFile("load", file) end
---@param file? string
function talux.load_ip(file) loadFile("load_ip", file) end
function talux.load_sec() loadFile("load_sec") end

-- ---- Without loading ----

-- A misspelled name would be passed over without a word.
local function inDictionary(settings)
  local found = {}
  for name, value in pairs(settings) do
    local row = dictionary.row(name)
    if not row then error(("%s: %s"):format(tostring(name), dictionary.unknown(name)), 3) end
    found[row.name] = value
  end
  return found
end

local function settingsOf(source)
  if type(source) == "table" then return inDictionary(source) end
  local settings, reason = sources.read(tostring(source), read)
  return settings or error(reason, 3)
end

---The settings of a file, or of a folder with the three files, as a load would store them, by name. Also those of
---the factory ("default") and of the working copy ("staged"). Changes nothing.
---@param source string
---@return table<string, any>
function talux.read(source) return (settingsOf(source)) end

---In which settings that both hold b differs from a: sources as read takes them, or tables of settings by name.
---@param a string|table<string, any>
---@param b string|table<string, any>
---@return talux.Change[]
function talux.differences(a, b) return (sources.differences(settingsOf(a), settingsOf(b))) end

-- ---- In words ----

local languages = {"de", "en"} -- as the parameter Language counts them

-- Texts in the language asked for, else in the device's.
local function textsIn(language)
  language = language or languages[numbers.read(command "TLX_Language")] or "en"
  if language ~= "de" and language ~= "en" then error('a language is "de" or "en"', 3) end
  return dictionary.texts(language)
end

---@class talux.Texts
---@field title string
---@field description string
---@field choices? table<integer, string>
---@field notes? {kind: "warning"|"unknown"|"advice", text: string}[]

---@class talux.Parameter: talux.Row
---@field de? talux.Texts
---@field en? talux.Texts
---@field members? {name: string, kind: string, unit?: string, de: string, en: string}[] of a record

---What is known of a parameter, with its texts in both languages or in one.
---@param name string
---@param language? "de"|"en"
---@return talux.Parameter
function talux.parameter(name, language)
  local row = dictionary.row(name)
  if not row then error(("%s: %s"):format(tostring(name), dictionary.unknown(name)), 2) end
  local parameter = {members = row.kind == "record" and (require "talux.records")[row.name] or nil}
  for key, value in pairs(row) do parameter[key] = value end
  for _, known in ipairs {language or "de", not language and "en" or nil} do
    local texts = textsIn(known)[row.name]
    parameter[known] = {title = texts[1], description = texts[2], choices = texts[3], notes = texts.notes}
  end
  return parameter
end

-- The answers of settings that had their factory defaults.
local defaultAnswers = {}

---The settings whose value in the working copy is not the factory default, which is the old value.
---@return talux.Change[]
function talux.changed()
  local changes, rows, queries = {}, dictionary.settings()
  for k = 1, #rows do
    local row, answer = rows[k], command(queries[k])
    if answer ~= defaultAnswers[k] then
      local now = valueOf(answer)
      if now == row.default then defaultAnswers[k] = answer
      else changes[#changes + 1] = {name = row.name, old = row.default, new = now} end
    end
  end
  return changes
end

---Changes to print, one in a line: name, title, old and new value with choice text and unit.
---@param changes talux.Change[]
---@param language? "de"|"en" else the device's
---@return string
function talux.protocol(changes, language)
  if type(changes) ~= "table" then error("a table of changes expected", 2) end
  for _, change in ipairs(changes) do
    if type(change) ~= "table" then error("a table of changes expected", 2) end
  end
  return (protocol(changes, textsIn(language))) -- no tail call, which would hide the caller's line
end

talux.now = require "talux.clock"

---Waits until a function returns something that is true, and returns that; nil after the time. Calls it every 20 ms
---and at least once.
---@param condition fun(): any
---@param seconds number
---@return any
function talux.wait(condition, seconds)
  if type(condition) ~= "function" then error("a function expected", 2) end
  if type(seconds) ~= "number" then error("a number of seconds expected", 2) end
  local elapsed, found = stopwatch()
  talux.every(20, function()
    found = condition() or nil
    return not found and elapsed() < seconds
  end)
  return found
end

---Whether the device program works: the counter of its records goes on within so many seconds.
---@param seconds? number 2 if not given
---@return boolean
function talux.alive(seconds)
  local before = talux.record "MessRecord01".Cnt
  return talux.wait(function() return talux.record "MessRecord01".Cnt ~= before end, seconds or 2) or false
end

---Calls a function at once and then every so many milliseconds, without drift, until it returns false. The
---function gets the number of the call; calls that it would be late for are left out.
---@param milliseconds number
---@param action fun(k: integer): boolean?
function talux.every(milliseconds, action)
  if type(milliseconds) ~= "number" or not (milliseconds > 0) then error("a time above 0 expected", 2) end
  if type(action) ~= "function" then error("a function expected", 2) end
  local period, k, elapsed, sleep = milliseconds / 1000, 1, stopwatch()
  while action(k) ~= false do
    k = math.max(k + 1, math.ceil(elapsed() / period) + 1)
    local due = (k - 1) * period
    while elapsed() < due do sleep(due - elapsed()) end
  end
end

return talux
