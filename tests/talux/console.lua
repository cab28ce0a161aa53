-- Runs what is typed in a document's ```console blocks and compares what comes back, error stream included.
-- "..." stands for anything, alone on a line for any number of lines; how many settings a save would write is left
-- to the catalogue. The commands share one device root.
local text, project = assert(io.open(arg[1])):read "*a", arg[2]
local scratch = os.tmpname()

local function run(command)
  local input = assert(io.open(scratch, "w"))
  input:write("project=", project, "\n", command, "\n")
  input:close()
  local pipe = io.popen("cd / && exec sh " .. scratch .. " 2>&1 </dev/null")
  local output = pipe:read "*a"
  pipe:close()
  return output
end

local function pattern(expected)
  local escaped = ("\n" .. expected):gsub("[%^%$%(%)%%%.%[%]%*%+%-%?]", "%%%0"):gsub("would write %d+", "would write %%d+")
  return "^" .. escaped:gsub("\n%%%.%%%.%%%.\n", "\n.-"):gsub("%%%.%%%.%%%.", ".-"):sub(2) .. "$"
end

local count, wrong = 0, 0
for block in text:gmatch "\n```console\n(.-)```" do
  local at = 1
  while true do
    local _, stop, command = block:find("^%$ ([^\n]*)\n", at)
    if not stop then break end
    local next_command = block:find("\n$ ", stop, true)
    local expected = block:sub(stop + 1, next_command or -1)
    local output = run(command)
    count = count + 1
    if not output:find(pattern(expected)) then
      wrong = wrong + 1
      print(("$ %s\n---- expected\n%s---- found\n%s----"):format(command, expected, output))
    end
    at = (next_command or #block) + 1
  end
end
os.remove(scratch)
assert(count > 0, "nothing is typed in " .. arg[1])
if wrong == 0 then print(("ok: %d commands of %s"):format(count, arg[1])) end
os.exit(wrong == 0)
