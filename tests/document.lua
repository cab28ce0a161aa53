-- Runs the scripts of a document: every ```lua block answers what the ```text block behind it shows, or nothing.
local text = assert(io.open(arg[1])):read("*a")
local lines
function print(...)
  local words = {...}
  for i = 1, select("#", ...) do words[i] = tostring(words[i]) end
  lines[#lines + 1] = table.concat(words, "\t") .. "\n"
end

local count, at = 0, 1
while true do
  local _, stop, code = text:find("```lua\n(.-)```", at)
  if not stop then break end
  local fence, shown = text:match("```(%a+)\n(.-)```", stop + 1)
  local expected = fence == "text" and shown or ""
  lines = {}
  assert(load(code))()
  local got = table.concat(lines)
  assert(got == expected, arg[1] .. " shows\n" .. expected .. "but the script\n" .. code .. "answers\n" .. got)
  count, at = count + 1, stop + 1
end
assert(count > 0, arg[1] .. " has no script")
