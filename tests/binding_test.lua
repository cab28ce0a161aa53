-- The module as a script sees it: its globals, talux_command, talux_usleep.
local failures = 0
local function expect(got, wanted, what)
  if got == wanted then return end
  failures = failures + 1
  print(("%s: got %q instead of %q"):format(what, tostring(got), tostring(wanted)))
end

-- Loading: only globals, in their order, no module table.
local names = {}
setmetatable(_G, {__newindex = function(t, name, value) names[#names + 1] = name; rawset(t, name, value) end})
expect(require "lib_talux_lua", true, "require")
setmetatable(_G, nil)
expect(table.concat(names, " "),
       "talux_usleep talux_command talux_getlasterror talux_longarray talux_doublearray", "globals")
for _, array in ipairs {talux_longarray, talux_doublearray} do
  local members = {}
  for name in pairs(array) do members[#members + 1] = name end
  table.sort(members)
  expect(table.concat(members, " "), "get getitem new setitem size", "members")
end

-- The start-up state.
expect(talux_getlasterror(), "", "last error at start")
expect(select("#", talux_getlasterror()), 1, "results of talux_getlasterror")

-- Lines and their answers: always one string, one final newline taken off.
local syntaxError = "<< SYNTAX ERROR >>"
local lines = {
  {"1,2,+", "3.000000"},
  {42, "42.000000"},
  {"", ""},
  {",,", syntaxError},
  {"nonsense", syntaxError},
  {"", ""}, -- an error is forgotten once it has been told
  {"1,0,/", "Division durch 0"},
  {"-9,sqrt", "Quadratwurzel von negativen Werten nicht erlaubt"},
  {"TLX_no_such_name", syntaxError},
  {"TLX_vBE", "<< INDEX REQUIRED >>"},
  {"TLX_Name=\"Feeder 7\"", ""},
  {"tlx_name", "\"Feeder 7\""},
  {"TLX_sec_mode=1", "<< VARIABLE IS READ ONLY >>"},
  {"TLX_vBE 5=7", ""},
  {"TLX_vBE 5", "7\n"}, -- the line of an element has a newline of its own
  {"LVR_vBE 4.5 -c", ";0;7"},
  {"update", "parameter successfully update\n"},
  {"system echo lost", ""},
  {"1\0,2,+", syntaxError},
  {"\0", syntaxError},
  {"TLX_vBE 5=8\0", syntaxError},
  {"TLX_vBE 5=" .. ("0"):rep(300) .. "8", syntaxError},
  {("x"):rep(1e6), syntaxError},
  {"TLX_vBE 5", "7\n"},
}
for _, row in ipairs(lines) do
  expect(talux_command(row[1]), row[2], tostring(row[1]):sub(1, 40))
  expect(select("#", talux_command(row[1])), 1, "results of " .. tostring(row[1]):sub(1, 40))
end
expect(talux_getlasterror(), "", "last error after lines")

-- Neither a string nor a number is an argument error.
for _, argument in ipairs {false, true, {}, print, io.stdout, "nothing"} do
  local good, text
  if argument == "nothing" then good, text = pcall(talux_command)
  else good, text = pcall(talux_command, argument) end
  expect(good, false, "talux_command of " .. tostring(argument))
  expect(text:match("bad argument #1 to '.*talux_command' %(line expected%)") ~= nil, true, text)
end

-- An answer fits with its newline and its NUL into 1000 bytes, or it is not given at all.
for i = 1, 96 do talux_command(("TLX_vMWR %d=%s"):format(i, i <= 25 and 100000 or i == 26 and 1000 or 0)) end
local longest = talux_command("TLX_vMWR 1.96 -c")
expect(#longest, 998, "longest answer")
expect(longest:sub(1, 21), "ARRAY:\n100000.000000;", "longest answer")
talux_command("TLX_vMWR 50=10")
expect(talux_command("TLX_vMWR 1.96 -c"), "<< OUTPUT BUFFER EXCEEDED >>", "an answer of 999 characters")
expect(talux_command("TLX_vMWR 1.96"), "<< OUTPUT BUFFER EXCEEDED >>", "a very long answer")
expect(talux_command("TLX_conman_status 1.247"), "<< OUTPUT BUFFER EXCEEDED >>", "a longer one")
expect(talux_command("1"), "1.000000", "the line after it")

-- Sleeping gives nothing back whatever it is given; what is no number and what is negative sleeps 0.
for _, argument in ipairs {1, "1", 0.9, -1, -1e300, 0/0, -1/0, "x", {}, false} do
  expect(select("#", talux_usleep(argument)), 0, "results of talux_usleep")
end
talux_usleep()

os.exit(failures == 0)
