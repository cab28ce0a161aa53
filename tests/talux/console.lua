-- Runs what is typed in a document's ```console blocks and compares what comes back, error stream included.
-- "$ " stands in front of a command, "> " in front of its further lines. "..." stands for anything, alone on a line
-- for any number of lines; how many settings a save would write is left to the catalogue. All commands share one device
-- root; what they leave in its / is removed at the end.
local text, project = assert(io.open(arg[1])):read "*a", arg[2]
local scratch = os.tmpname()

local function run(command)
  local input = assert(io.open(scratch, "w"))
  input:write("project=", project, "\n", command, "\n")
  input:close()
  local pipe = io.popen("cd / && sh " .. scratch .. " 2>&1 </dev/null")
  local output = pipe:read "*a"
  pipe:close()
  return output
end

local function files()
  local names = {}
  for name in run("find / -maxdepth 1 -type f"):gmatch "[^\n]+" do names[name] = true end
  return names
end

local function pattern(expected)
  local escaped = ("\n" .. expected):gsub("[%^%$%(%)%%%.%[%]%*%+%-%?]", "%%%0"):gsub("would write %d+", "would write %%d+")
  return "^" .. escaped:gsub("\n%%%.%%%.%%%.%f[\n]", "\n.-"):gsub("%%%.%%%.%%%.", "[^\n]-") .. "$"
end

local count, wrong, before = 0, 0, files()
local function try(command, expected)
  local output = run(command)
  count = count + 1
  if ("\n" .. output):find(pattern(expected)) then return end
  wrong = wrong + 1
  print(("$ %s\n---- expected\n%s---- found\n%s----"):format(command, expected, output))
end

for block in text:gmatch "\n```console\n(.-)```" do
  local command, expected
  for line in block:gmatch "([^\n]*)\n" do
    local mark, rest = line:match "^([$>]) (.*)$"
    if mark == "$" then
      if command then try(command, expected) end
      command, expected = rest, ""
    elseif mark == ">" and expected == "" then
      command = command .. "\n" .. rest
    else
      expected = expected .. line .. "\n"
    end
  end
  try(command, expected)
end
os.remove(scratch)
for name in pairs(files()) do
  if not before[name] then os.remove(name) end
end
assert(count > 0, "nothing is typed in " .. arg[1])
if wrong == 0 then print(("ok: %d commands of %s"):format(count, arg[1])) end
os.exit(wrong == 0)
