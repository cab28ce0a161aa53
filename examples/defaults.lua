-- Compares the settings with the factory defaults, file by file.
--
--   scripts/run.sh --root DIR examples/defaults.lua [de|en] [FILE]   FILE of DIR is loaded before
local talux = require "talux"

local language, file = arg[1] or "en", arg[2]
if file then talux.load(file) end

local files, changes = {}, {}
for _, change in ipairs(talux.changed()) do
  local name = talux.parameter(change.name, language).file
  if not changes[name] then
    files[#files + 1], changes[name] = name, {}
  end
  table.insert(changes[name], change)
end

for _, name in ipairs(files) do
  print(("%s: %d\n%s\n"):format(name, #changes[name], talux.protocol(changes[name], language)))
end
if #files == 0 then print "All settings are factory defaults." end
