-- The module as a script sees it: its globals, talux_command, talux_usleep.
local check = dofile(arg[0]:match(".*/") .. "check.lua")
local equal, case = check.equal, check.case
local syntaxError = "<< SYNTAX ERROR >>"

case("loading sets five globals in their order and no module table", function()
  local names = {}
  setmetatable(_G, {__newindex = function(t, name, value) names[#names + 1] = name; rawset(t, name, value) end})
  equal(require "lib_talux_lua", true, "require")
  setmetatable(_G, nil)
  equal(table.concat(names, " "),
        "talux_usleep talux_command talux_getlasterror talux_longarray talux_doublearray", "globals")
  for _, array in ipairs {talux_longarray, talux_doublearray} do
    local members = {}
    for name in pairs(array) do members[#members + 1] = name end
    table.sort(members)
    equal(table.concat(members, " "), "get getitem new setitem size", "members")
  end
  equal(talux_getlasterror(), "", "last error at start")
  equal(select("#", talux_getlasterror()), 1, "results of talux_getlasterror")
end)

case("a line gives one string without its last newline", function()
  for _, row in ipairs {
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
  } do
    local what = tostring(row[1]):sub(1, 40)
    equal(talux_command(row[1]), row[2], what)
    equal(select("#", talux_command(row[1])), 1, "results of " .. what)
  end
  equal(talux_getlasterror(), "", "last error after lines")
end)

case("a line that is neither string nor number is an argument error", function()
  for _, arguments in ipairs {{n = 0}, {nil, n = 1}, {false, n = 1}, {{}, n = 1}, {print, n = 1}, {io.stdout, n = 1}} do
    local good, text = pcall(talux_command, table.unpack(arguments, 1, arguments.n))
    equal(good, false, "talux_command of " .. tostring(arguments[1]))
    equal(text:gsub(" to '[^']*'", ""), "bad argument #1 (line expected)", tostring(arguments[1]))
  end
end)

case("an answer fits with newline and NUL into 1000 bytes or is refused", function()
  for i = 1, 96 do
    talux_command(("TLX_vMWR %d=%d"):format(i, i <= 25 and 100000 or i == 26 and 1000 or 0))
  end
  local longest = talux_command("TLX_vMWR 1.96 -c")
  equal(#longest, 998, "longest answer")
  equal(longest:sub(1, 21), "ARRAY:\n100000.000000;", "longest answer")
  talux_command("TLX_vMWR 50=10")
  for _, line in ipairs {"TLX_vMWR 1.96 -c", "TLX_vMWR 1.96", "TLX_conman_status 1.247"} do
    equal(talux_command(line), "<< OUTPUT BUFFER EXCEEDED >>", line)
  end
  equal(talux_command("1"), "1.000000", "the line after them")
end)

case("sleeping takes anything and gives nothing back", function()
  for _, argument in ipairs {1, "1", 0.9, -1, -1e300, 0/0, -1/0, "x", {}, false} do
    equal(select("#", talux_usleep(argument)), 0, "results of talux_usleep")
  end
  equal(select("#", talux_usleep()), 0, "results of talux_usleep")
end)

check.finish()
