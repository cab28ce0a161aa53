-- The module as a script sees it: its globals, talux_command, talux_usleep.
local check = dofile(arg[0]:match(".*/") .. "check.lua")
local equal, case = check.equal, check.case

case("loading sets five globals in their order and no module table", function()
  local names, members = {}, {}
  setmetatable(_G, {__newindex = function(t, name, value) names[#names + 1] = name; rawset(t, name, value) end})
  equal(require "lib_talux_lua", true, "require")
  setmetatable(_G, nil)
  equal(table.concat(names, " "),
        "talux_usleep talux_command talux_getlasterror talux_longarray talux_doublearray", "globals")
  for _, array in ipairs {talux_longarray, talux_doublearray} do
    for name in pairs(array) do members[#members + 1] = name end
  end
  table.sort(members)
  equal(table.concat(members, " "), "get get getitem getitem new new setitem setitem size size", "members")
  equal(talux_getlasterror(), "", "last error at start")
end)

case("a line gives one string without its last newline", function()
  local syntaxError = "<< SYNTAX ERROR >>"
  for _, row in ipairs {
    {42, "42.000000"},
    {"nonsense", syntaxError},
    {"", ""}, -- an error is forgotten once it has been returned
    {"TLX_FW_BLOCK=1", ""}, -- with full rights
    {"TLX_Name=\"Feeder 7\",tlx_name", "\"Feeder 7\""},
    {"TLX_vBE", "<< INDEX REQUIRED >>"},
    {"TLX_vBE 5=7,TLX_vBE 5", "7\n"}, -- the line of an element has a newline of its own
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
  equal(#talux_command("TLX_vMWR 1.96 -c"), 998, "longest answer")
  talux_command("TLX_vMWR 50=10")
  for _, line in ipairs {"TLX_vMWR 1.96 -c", "TLX_vMWR 1.96", "TLX_conman_status 1.247"} do
    equal(talux_command(line), "<< OUTPUT BUFFER EXCEEDED >>", line)
  end
  equal(talux_command("1"), "1.000000", "the line after them")
end)

check.finish()
