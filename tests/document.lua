-- Runs the scripts of a document: every ```lua block answers what the ```text block after it shows, or nothing. Each is
-- a script of its own, without the globals of the others; one that begins with "-- NAME.lua" is that file instead.
-- With TALUX_ACCEPT set, the document gets what they answer.
local check = dofile(arg[0]:match(".*/") .. "check.lua")
local accepts = os.getenv "TALUX_ACCEPT"
local page = assert(io.open(arg[1]))
local text = page:read "*a"
page:close()
local whole, lines = text
function print(...)
  local words = {...}
  for i = 1, select("#", ...) do words[i] = tostring(words[i]) end
  lines[#lines + 1] = table.concat(words, "\t") .. "\n"
end

local files = {}
local function run(code)
  local file = code:match "^%-%- (%w+%.lua)\n"
  local script = assert(load(code, code, "t", setmetatable({}, {__index = _G})))
  if not file then return script() end
  files[#files + 1] = file
  assert(io.open(file, "w")):write(code):close()
end

local count, at = 0, 1
while true do
  local _, stop, code = text:find("```lua\n(.-)```", at)
  if not stop then break end
  local _, close, fence, shown = text:find("```(%a+)\n(.-)```", stop + 1)
  local expected = fence == "text" and shown or ""
  lines = {}
  check.leavesNothing(run, code)
  local got = table.concat(lines)
  if got ~= expected then
    assert(accepts and fence == "text", arg[1] .. " shows\n" .. expected .. "but the script\n" .. code .. "answers\n" .. got)
    text = text:sub(1, close - 3 - #shown) .. got .. text:sub(close - 2)
  end
  count, at = count + 1, stop + 1
end
for _, file in ipairs(files) do os.remove(file) end
assert(count > 0, arg[1] .. " has no script")
if text ~= whole then assert(io.open(arg[1], "w")):write(text) end
check.finish()
