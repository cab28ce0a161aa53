-- The README's first script answers what the README shows.
local path = arg[0]:gsub("tests/readme.lua$", "README.md")
local text = assert(io.open(path)):read("*a")
local code, expected = text:match("```lua\n(.-)```.-```text\n(.-)```")
assert(code and #expected > 0, "the README has no script with its output")

local lines = {}
function print(...)
  local words = { ... }
  for i = 1, #words do words[i] = tostring(words[i]) end
  lines[#lines + 1] = table.concat(words, "\t") .. "\n"
end
assert(load(code))()
local got = table.concat(lines)
assert(got == expected, "the README shows\n" .. expected .. "but the script answers\n" .. got)
