-- Beside no other device program: what talux-desk refuses, its cycles with --step, its statistics, its status.
--
--   commands.lua DESK-COMMAND..
local check = dofile(arg[0]:match ".*/" .. "../check.lua")
local talux = require "talux"
local equal, case = check.equal, check.case
local desk = table.concat(arg, " ")

-- What a command prints, and its status.
local function shell(command)
  local pipe = io.popen("cd /tmp/desk && { " .. command .. "; } 2>&1; echo $?")
  local said = pipe:read "*a"
  pipe:close()
  return said
end
local function inFolder(body)
  return function()
    os.execute "mkdir /tmp/desk"
    body()
    os.execute "rm -r /tmp/desk"
  end
end

case("refusals", inFolder(function()
  shell [[printf 'network isolated 20 V\n\nat 1 s earth fault L1 solid\n' >wrong
    printf 'at 0 s replay none.csv\n' >replay; echo 'at 1 s end' >good]]
  local hint = "Try `talux-desk --help' or `talux-desk --usage' for more information.\n"
  for _, row in ipairs {
    {"--scenario none", 2, "talux-desk: none: No such file or directory\n"},
    {"--scenario wrong --check", 1, "wrong:1: 'kV' expected, not 'V'\nwrong:3: the direction is missing\n"},
    {"--scenario wrong --plot x.svg", 1, "wrong:1: 'kV' expected, not 'V'\nwrong:3: the direction is missing\n"},
    {"--scenario ./replay --plot x.svg", 2, "talux-desk: ./none.csv: cannot be read\n"},
    {"--scenario /tmp/desk/replay --plot x.svg", 2, "talux-desk: /tmp/desk/none.csv: cannot be read\n"},
    {"--scenario good --plot none/x.svg", 2, "talux-desk: none/x.svg: No such file or directory\n"},
    {"--scenario good log; " .. desk .. " --scenario good log; grep -c Uearth log", 0, "ready\nready\n1\n"},
    {"--scenario good none/log", 2, "talux-desk: none/log: No such file or directory\n"},
    {"--scenario good --check", 0, ""},
    {"--check", 0, ""},
    {"--check --speed 0.01 && " .. desk .. " --check --speed 1000", 0, ""},
    {"--speed 0.0099", 2, "talux-desk: --speed 0.0099: must be 0.01 to 1000\n" .. hint},
    {"--speed 1000.1", 2, "talux-desk: --speed 1000.1: must be 0.01 to 1000\n" .. hint},
    {"--speed 0", 2, "talux-desk: --speed 0: must be 0.01 to 1000\n" .. hint},
    {"--speed 1x", 2, "talux-desk: --speed 1x: must be 0.01 to 1000\n" .. hint},
    {"one two", 2, "talux-desk: two is not expected here\n" .. hint},
    {"-h | head -n 1", 0, "Usage: talux-desk [OPTION...] [LOGFILE]\n"},
    {"--scenario good --plot x.svg && grep -o '>[0-9]* s<' x.svg", 0, ">0 s<\n>1 s<\n"},
    {"--check; for s in 10 30 31; do echo \"at $s s end\" >good; " .. desk .. " --scenario good --plot x.svg; grep -c ' s</text>' x.svg; done",
      0, "11\n16\n4\n"},
  } do
    equal(shell(desk .. " " .. row[1]), row[3] .. row[2] .. "\n", row[1])
  end
end))

case("a cycle per line, until the lines or the scenario end", inFolder(function()
  local heading = "a model for learning and for trying scripts, no protection\nUearth is 30 now\nready\n0\n"
  equal(shell("printf '\\n\\n\\n' | " .. desk .. " --step"), heading, "without a scenario")
  equal(talux.record "MessRecord01".Cnt, 4, "cycles")
  shell "printf 'at 0.06 s restart\n at 0.3 s end' >short" -- nothing is published while it restarts
  equal(shell("yes | " .. desk .. " --step --scenario short"), heading, "the scenario ends")
  equal(talux.record "MessRecord01".Cnt, 3, "cycles")
end))

case("cycles that a standstill took are left out", inFolder(function()
  local pipe = io.popen("echo $$; exec " .. desk)
  local pid = pipe:read()
  repeat until pipe:read() == "ready"
  os.execute(("kill -STOP %s; sleep 2; kill -CONT %s; sleep 0.2; kill -INT %s"):format(pid, pid, pid))
  equal(pipe:close(), true, "ctrl-C ends it well")
  equal(talux.record "MessRecord01".Cnt < 75, true, "cycles")
end))

case("statistics and changes of the threshold", inFolder(function()
  local pipe = io.popen("echo $$; exec " .. desk .. " --speed 1000 /tmp/desk/log")
  local pid = pipe:read()
  equal(pipe:read(), "ready", "the desk is ready")
  talux.apply {stat_intervall = 1, Uearth = 36.5}
  talux.update()
  talux.every(20, function(k) return talux.record "StatRecord_c0".dT == 0 and k < 1000 end)
  os.execute("kill " .. pid)
  equal(pipe:close(), true, "a signal ends it well")
  local statistics = talux.record "StatRecord_c0"
  equal(statistics.dT, 60, "seconds")
  equal(math.abs(statistics.U1_max - 11.5) < 0.2, true, "largest U1")
  equal(shell "tail -n 1 log", "Uearth is 36.5 now\n0\n", "the log")
end))

check.finish()
