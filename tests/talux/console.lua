-- Runs what is typed in a document's ```console blocks and compares what comes back: the lines that complain come from
-- the error stream, the others from the standard output. Status 2 and a complaint of talux go together, and a watch takes
-- the time of its periods.
-- "$ " comes before a command, "> " before its further lines. "..." stands for anything, alone on a line
-- for any number of lines; how many settings a save would write is left to the catalogue. All commands share one device
-- root; what they leave in its / is removed at the end. With TALUX_ACCEPT set, the document gets what comes back.
local text, project, accepts = assert(io.open(arg[1])):read "*a", arg[2], os.getenv "TALUX_ACCEPT"
local scratch, complaints = os.tmpname(), os.tmpname()

local function contents(path)
  local file = assert(io.open(path))
  local all = file:read "*a"
  file:close()
  return all
end

local function run(command)
  local input = assert(io.open(scratch, "w"))
  input:write("project=", project, "\n", command, "\n")
  input:close()
  local pipe = io.popen("cd / && sh " .. scratch .. " 2>" .. complaints .. " </dev/null")
  local output = pipe:read "*a"
  local _, _, status = pipe:close()
  return output, contents(complaints), status
end

-- What is expected of either stream; an indented line explains the complaint before it.
local function streamsOf(expected, command)
  if command:find("2>&1 |", 1, true) then return expected, "" end
  local streams, complains = {"", ""}, false
  for line in expected:gmatch "[^\n]*\n" do
    complains = line:find "^talux: " or line:find "^<< " or complains and line:find "^ "
    local stream = complains and 2 or 1
    streams[stream] = streams[stream] .. line
  end
  return streams[1], streams[2]
end

-- In hundredths of a second.
local function uptime() return tonumber(contents("/proc/uptime"):match "%S+") end

-- A complaint without status 2 or the reverse, and a watch of the wrong length; a script of several commands shows both.
local function misbehaves(command, errors, status, seconds)
  local count, period = command:match "^talux watch.*%-%-count (%d+).*%-%-period ([%d.]+)"
  local least = count and (count - 1) * period
  return not command:find "[;|&\n]" and (status == 2) ~= (errors:find "^talux: " ~= nil) and "status " .. status
    or least and (seconds < least - 0.02 or seconds > 2 * least + 2) and seconds .. " seconds"
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

local function linesOf(answer)
  local lines = {}
  for line in answer:gmatch "[^\n]*\n" do lines[#lines + 1] = line end
  return lines
end

-- What a document shows instead of `expected`: the lines that fit it stay, and "..." for some of them.
local function renewed(expected, output)
  local old, new, left = linesOf(expected), linesOf(output), nil
  for k, line in ipairs(old) do left = left or line == "...\n" and k end
  local kept = {}
  for k = 1, left and left - 1 or #new do kept[k] = ("\n" .. new[k]):find(pattern(old[k] or "")) and old[k] or new[k] end
  for k = left or #old + 1, #old do
    local line = new[#new - #old + k]
    kept[#kept + 1] = k > left and not ("\n" .. line):find(pattern(old[k])) and line or old[k]
  end
  return table.concat(kept)
end

local count, wrong, before = 0, 0, files()
local function try(command, expected)
  local start = uptime()
  local output, errors, status = run(command)
  local fault = misbehaves(command, errors, status, uptime() - start)
  local out, err = streamsOf(expected, command)
  count = count + 1
  if not fault and ("\n" .. output):find(pattern(out)) and ("\n" .. errors):find(pattern(err)) then return expected end
  wrong = wrong + 1
  output = output .. errors
  if fault then print(fault) end
  print(("$ %s\n---- expected\n%s---- found\n%s----"):format(command, expected, output))
  return renewed(expected, output)
end

local function follow(block)
  local shown, command, expected = {}
  local function finish()
    if command then shown[#shown + 1] = try(command, expected) end
  end
  for line in block:gmatch "([^\n]*)\n" do
    local mark, rest = line:match "^([$>]) (.*)$"
    if mark == "$" then
      finish()
      command, expected = rest, ""
    elseif mark == ">" and expected == "" then
      command = command .. "\n" .. rest
    else
      expected = expected .. line .. "\n"
    end
    if mark == "$" or mark == ">" and expected == "" then shown[#shown + 1] = line .. "\n" end
  end
  finish()
  return table.concat(shown)
end

local accepted = text:gsub("(\n```console\n)(.-)(```)", function(open, block, close) return open .. follow(block) .. close end)
for name in pairs(files()) do
  if not before[name] then os.remove(name) end
end
os.remove(scratch)
os.remove(complaints)
assert(count > 0, "nothing is typed in " .. arg[1])
if accepts and accepted ~= text then assert(io.open(arg[1], "w")):write(accepted) end
if wrong == 0 then print(("ok: %d commands of %s"):format(count, arg[1])) end
os.exit(wrong == 0 or accepts ~= nil)
