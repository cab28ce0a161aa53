-- Settings on their way into the operating system: addresses, routes, aliases, name server, time, radio.
-- Run it with scripts/run.sh examples/network.lua. Beside it, network.setup.sh lays two cables whose near
-- ends are eth0 and eth1, and puts recorders in the place of iwconfig, ntpd and the like. What the module
-- runs is announced on the error stream; what this script shows is read back from the kernel.
require "lib_talux_lua"

local step = 0
local function headline(text)
  step = step + 1
  print(("\n%d. %s"):format(step, text))
end

local function run(line, expected)
  print("   > " .. line)
  io.stdout:flush()
  local answer = talux_command(line)
  assert(answer == expected, answer)
end

local function set(line) run(line, "") end
local function load_ip() run("load_ip", "IPs successfully loaded\n") end

local function output(command)
  local pipe = assert(io.popen(command))
  local text = pipe:read("*a")
  pipe:close()
  return text
end

-- What the kernel has: "eth0:1 10.1.2.3/24" for each address, and its routes.
local function addresses()
  local found = {}
  for line in output("ip -o -4 address show"):gmatch("[^\n]+") do
    local address, label = line:match("inet (%S+).* (eth%S+)\\")
    if label then found[label] = address end
  end
  return found
end

local function routes()
  local found = {}
  for line in output("ip -4 route show"):gmatch("[^\n]+") do
    found[line:gsub("%s+$", ""):gsub(" proto.*", ""):gsub(" scope.*", ""):gsub(" src.*", "")] = true
  end
  return found
end

local function read_file(name)
  local file = assert(io.open(name))
  local text = file:read("*a")
  file:close()
  return text
end

local function show(what, expected, found)
  print(("     %-10s %s"):format(what, (found:gsub("\n$", ""):gsub("\n", "; "))))
  assert(expected == found, ("%s: expected %s"):format(what, expected))
end

local function show_network(expected)
  local found, reached = addresses(), routes()
  for _, label in ipairs { "eth0", "eth0:1", "eth0:2", "eth0:3", "eth0:4", "eth1" } do
    show(label, expected[label] or "-", found[label] or "-")
  end
  for _, route in ipairs(expected) do
    assert(reached[route], "no route " .. route)
    print("     route      " .. route)
  end
end

headline "Settings wait in the working copy: nothing reaches the kernel"
set 'TLX_ETH0_MASK="255.255.255.0",TLX_ETH0_GATEWAY="192.168.55.1"'
for alias, last in ipairs { "10.1.1", "10.1.2", "10.1.3", "10.1.4" } do
  set(('TLX_T104_ETH_IP_%d="%s.3",TLX_T104_ETH_MA_%d="255.255.255.0"'):format(alias, last, alias))
end
set 'TLX_T104_ETH_GW_1="10.1.1.1"'
set 'TLX_DNS="192.168.55.2",TLX_NTP1="192.168.55.3",TLX_NTP2="192.168.055.004"'
set "TLX_eth1_active=1"
assert(next(addresses()) == nil)

headline "Writing an interface address applies everything"
set 'TLX_ETH0_IP="192.168.55.10"'
local expected = {
  eth0 = "192.168.55.10/24", eth1 = "10.16.55.128/16",
  ["eth0:1"] = "10.1.1.3/24", ["eth0:2"] = "10.1.2.3/24", ["eth0:3"] = "10.1.3.3/24", ["eth0:4"] = "10.1.4.3/24",
  "default via 192.168.55.1 dev eth0", "10.1.1.0/24 via 10.1.1.1 dev eth0", "10.1.2.0/24 dev eth0",
}
show_network(expected)
show("resolver", "nameserver 192.168.55.2\n", read_file "/etc/resolv.conf")

headline "load_ip with unchanged settings ends in the same state"
load_ip()
show_network(expected)

headline "load_ip brings the network from the file"
local file = read_file "/ip_config.ini"
file = file:gsub('ETH0_IP="[^"]*"', 'ETH0_IP="192.168.55.20"', 1):gsub('ETH_IP_3="[^"]*"', 'ETH_IP_3="0.0.0.0"')
assert(io.open("/ip_config.ini", "w")):write(file):close()
load_ip()
expected.eth0, expected["eth0:3"] = "192.168.55.20/24", nil
show_network(expected)

headline "Radio and time programs got exactly their arguments, whatever the texts hold"
talux_usleep(300000) -- the watchdog of the run before starts in the background
os.remove "/tmp/recorded"
set [[TLX_essid="Hall 7; touch /canary $(touch /canary)",TLX_key="it's"]]
set "TLX_wlan0_active=1,TLX_NTP_RTC=0"
set 'TLX_WLAN0_IP="192.168.60.1"'
talux_usleep(300000)
local recorded = read_file "/tmp/recorded"
print((recorded:gsub("[^\n]+", "     %0")))
assert(recorded:find("iwconfig [wlan0] [essid] [Hall 7; touch /canary $(touch /canary)]\n", 1, true))
assert(recorded:find("iwconfig [wlan0] [key] [it's]\n", 1, true))
assert(recorded:find("ntpdate [-b] [192.168.55.3]\nhwclock [-w] [--utc]\n", 1, true))
assert(not io.open("/canary"), "a text was run as a command")
show("ntp.conf", "server 192.168.55.3 true\nserver 192.168.55.4\n", read_file "/tmp/ntp.conf")
print "\nThe network is as it was set."
