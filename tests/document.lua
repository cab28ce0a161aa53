-- Runs the scripts of a document: every ```lua block answers what the ```text block behind it shows.
local text = assert(io.open(arg[1])):read("*a")
local lines
function print(...)
  local words = {...}
  for i = 1, select("#", ...) do words[i] = tostring(words[i]) end
  lines[#lines + 1] = table.concat(words, "\t") .. "\n"
end

local count = 0
for code, between, expected in text:gmatch("```lua\n(.-)```(.-)```text\n(.-)```") do
  assert(not between:find "```", arg[1] .. " has a script without its output")
  lines = {}
  assert(load(code))()
  local got = table.concat(lines)
  assert(got == expected, arg[1] .. " shows\n" .. expected .. "but the script\n" .. code .. "answers\n" .. got)
  count = count + 1
end
assert(count > 0, arg[1] .. " has no script")
