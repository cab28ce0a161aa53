-- Time that has passed, from the clock of the kernel that nobody sets. It shows steps of 10 ms.
local function uptime()
  local file = assert(io.open "/proc/uptime")
  local whole, hundredths = file:read("*l"):match "^(%d+)%.(%d+)"
  file:close()
  return whole + hundredths / 100
end

---Starts a watch. Between two steps of the clock it counts what was computed and slept through its own sleep.
---@return fun(): number elapsed seconds
---@return fun(seconds: number) sleep for 1000 seconds at most
return function()
  local start = uptime()
  local now, used = start, os.clock()
  local function elapsed(slept)
    local step, cpu = uptime(), os.clock()
    now = math.min(math.max(now + (slept or 0) + cpu - used, step), step + 0.01)
    used = cpu
    return now - start
  end
  local function sleep(seconds)
    seconds = math.min(seconds, 1000)
    talux_usleep(seconds * 1000000)
    elapsed(seconds)
  end
  return elapsed, sleep
end
