-- What the Lua tests share: expectations, and named cases that the test summary counts. A case leaves the process as it
-- found it.
local check = {}
local failures = 0

function check.equal(got, wanted, what)
  if got == wanted or (got ~= got and wanted ~= wanted) then return end
  failures = failures + 1
  print(("%s: got %q instead of %q"):format(what, tostring(got), tostring(wanted)))
end

local function linesWith(pattern, source, things)
  for line in source:lines() do
    if line:find(pattern) then things[#things + 1] = line:match(pattern) end
  end
  source:close()
end

-- Open files, attached segments, children, file locks, signals, umask, folder, locale and temporary files, as lines.
local function thingsOfTheProcess()
  local things = {"locale " .. os.setlocale()}
  linesWith("^Umask.*", io.open "/proc/self/status", things)
  linesWith("^Sig[BIC].*", io.open "/proc/self/status", things)
  local segments, attached = {}, {}
  linesWith("%S+%s+/SYSV.*", io.open "/proc/self/maps", segments)
  for _, segment in ipairs(segments) do
    things[#things + 1] = attached[segment] -- the module attaches each once
    attached[segment] = segment
  end
  local stat = io.open "/proc/self/stat"
  linesWith(": (.* " .. stat:read "*n" .. " .*)", io.open "/proc/locks", things)
  stat:close()
  linesWith("%-> .*", io.popen "ls -l /proc/$PPID/fd | grep -vF $(readlink /proc/$$/fd/1)", things)
  linesWith(".+", io.popen "pwd; cat /proc/$PPID/task/$PPID/children | wc -w; ls -A /tmp", things)
  return things
end

local function tell(what, things, without)
  local count = {}
  for _, thing in ipairs(without) do count[thing] = (count[thing] or 0) + 1 end
  for _, thing in ipairs(things) do
    count[thing] = (count[thing] or 0) - 1
    check.equal(count[thing] < 0 and thing, false, what)
  end
end

function check.leavesNothing(body, ...)
  local before = thingsOfTheProcess()
  body(...)
  local after = thingsOfTheProcess()
  tell("left over", after, before)
  tell("gone", before, after)
end

function check.case(name, body)
  local before = failures
  check.leavesNothing(body)
  if failures == before then print("ok: " .. name) end
end

function check.finish() os.exit(failures == 0) end

return check
