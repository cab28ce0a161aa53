-- Runs the scripts of a document: every ```lua block answers what the ```text block after it shows, or nothing. With
-- TALUX_ACCEPT set, the document gets what they answer.
local accepts = os.getenv "TALUX_ACCEPT"
local text = assert(io.open(arg[1])):read "*a"
local whole, lines = text
function print(...)
  local words = {...}
  for i = 1, select("#", ...) do words[i] = tostring(words[i]) end
  lines[#lines + 1] = table.concat(words, "\t") .. "\n"
end

local count, at = 0, 1
while true do
  local _, stop, code = text:find("```lua\n(.-)```", at)
  if not stop then break end
  local _, close, fence, shown = text:find("```(%a+)\n(.-)```", stop + 1)
  local expected = fence == "text" and shown or ""
  lines = {}
  assert(load(code))()
  local got = table.concat(lines)
  if got ~= expected then
    assert(accepts and fence == "text", arg[1] .. " shows\n" .. expected .. "but the script\n" .. code .. "answers\n" .. got)
    text = text:sub(1, close - 3 - #shown) .. got .. text:sub(close - 2)
  end
  count, at = count + 1, stop + 1
end
assert(count > 0, arg[1] .. " has no script")
if text ~= whole then assert(io.open(arg[1], "w")):write(text) end
