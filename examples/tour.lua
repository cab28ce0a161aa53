-- A tour of the module: measured values, arithmetic, ranges and records, settings, files, refusals.
-- Run it with scripts/run.sh; the device program (talux-desk) runs beside it.
local talux = require "talux"

local step = 0
local function headline(text)
  step = step + 1
  print(("\n%d. %s"):format(step, text))
end

local function say(...) print("   " .. string.format(...)) end

-- Evaluates a line and shows it with its answer, indented, at most `most` lines of it.
local function show(line, most)
  local answer = talux_command(line):gsub("\n+$", "")
  print("   > " .. line)
  if answer == "" then print("     (no text: it is done)") end
  local shown = 0
  for text in answer:gmatch("[^\n]+") do
    shown = shown + 1
    if most and shown > most then print("     ...") break end
    print("     " .. text)
  end
  return answer
end

-- Asks until `ready` gives a value; the device answers within a second or is gone.
local function wait_for(what, ready)
  for _ = 1, 250 do
    local value = ready()
    if value then return value end
    talux_usleep(20000)
  end
  error("the device program does not answer: " .. what)
end

-- The number of the device's measuring cycle.
local function device_cycle() return talux.record "MessRecord01".Cnt end

local function pass_two_cycles()
  local start = device_cycle()
  wait_for("no new cycle", function() return device_cycle() >= start + 2 end)
end

-- The last thing the device program reported about its setting.
local function device_says()
  local last
  for text in io.lines("/tmp/device.log") do last = text end
  return last
end

local function device_reaches(text)
  wait_for(text, function() return device_says() == text end)
  say("the device program: %s", text)
end

local function read_file(name)
  local file = io.open(name)
  if not file then return nil end
  local text = file:read("*a")
  file:close()
  return text
end

local function list(pattern)
  local names, pipe = {}, io.popen("ls " .. pattern .. " 2>/dev/null")
  for name in pipe:lines() do names[#names + 1] = name end
  pipe:close()
  return names
end

print("The tour of lib_talux_lua")
say("Values live in shared memory as long as this isolated system runs. Files stay in its root directory:")
say("name one with scripts/run.sh --root DIR and look into it afterwards. Nothing loads itself at start.")
if read_file("/parameter.ini") then
  say("This root has a /parameter.ini from before; the device still begins with its factory defaults.")
end

headline "Read what the device measures"
show "TLX_U1_prim"
show "TLX_f_grid"
show "TLX_Name"

headline "Compute with it: operands first, then the operator"
say("Voltages are in kV, so the first two are V and MV; the last is the apparent power in MVA:")
show "TLX_U1_prim,1000,*"
show "TLX_U1_prim,1000,/"
show "TLX_U12_prim,TLX_U1_prim,/"
show "TLX_P_prim,sqr,TLX_Q_prim,sqr,+,sqrt,1000,/"

headline "Read a range of an array"
say("Twelve measured voltages in kV, one per cycle, go into the array vMWR:")
for k = 1, 12 do
  talux.set("vMWR", {[k] = talux.get "U1_prim"})
  talux_usleep(50000)
end
show("TLX_vMWR 1.12", 4)
show "TLX_vMWR 1.12 -c"
say("All 96 in the plain form do not fit into the 1000 bytes of an answer; values alone do:")
show "TLX_vMWR 1.96"
show("TLX_vMWR 1.96 -p", 4)
say("A script that needs them all as numbers takes them in one call:")
local values = talux.get("vMWR", 1, 96)
say("talux.get reads %d values, the twelfth is %f", #values, values[12])

headline "Read a record of 59 members"
show "TLX_MessRecord01"
say("The plain form is too long for an answer; -c joins the values, -h gives the bytes:")
local record = talux_command "TLX_MessRecord01 -c"
print("   > TLX_MessRecord01 -c")
print("     " .. record:gsub("\n", " "):sub(1, 90) .. "...")
say("%d characters; the device is in its cycle %d", #record, device_cycle())

headline "Change a setting: it waits in the working copy until update"
say("the device program: %s", wait_for("its setting", device_says))
show "TLX_Uearth=35"
show "TLX_Uearth"
pass_two_cycles()
say("two cycles later the device program still works with its own: %s", device_says())
show "update"
device_reaches "Uearth is 35 now"

headline "Save: a file and its dated copy"
if show("save"):match("success") then
  local saved = read_file("/parameter.ini")
  local _, lines = saved:gsub("\n", "")
  say("/parameter.ini has %d lines, among them %s", lines, saved:match("TLX_Uearth=[^\n]*"))
  local copies = list("/param_*.ini")
  assert(read_file(copies[#copies]))
  say("its dated copy is %s", copies[#copies])

  headline "Spoil the setting, load the file, it is back"
  show "TLX_Uearth=90,update"
  device_reaches "Uearth is 90 now"
  show "load"
  device_reaches "Uearth is 35 now"
  show "TLX_Uearth"
else
  print("skipped: this root directory cannot be written, so there is no file to show and to load")
end

headline "What is refused, and how"
show "TLX_Uearth=95"
show "TLX_Uearth=0"
show "TLX_MAC_adress=\"00:11:22:33:44:55\""
show "TLX_NoSuchName"
show "TLX_vMWR"
show "TLX_vMWR 97"
show "TLX_U1_prim 3"
show "1,0,/"
say("the setting is still %s", talux_command "TLX_Uearth")

headline "The same in Lua: values, tables, errors"
local good, reason = pcall(talux.apply, {Uearth = 40, qu2_Ice = "7,5", BAasign3 = "qu2 ->F"})
for fault in reason:gmatch "[^\n]+" do say("refused: %s", fault) end
assert(not good and talux.get "Uearth" == 35)
local changes = talux.apply {Uearth = 40, qu2_Ice = 7.5, BAassign3 = "qu2 ->F"}
for change in talux.protocol(changes, "en"):gmatch "[^\n]+" do say("%s", change) end
