-- The clock of the device with fractions of a second, which Lua does not have: read once from another program,
-- plus the time that has passed since.
local numbers = require "talux.numbers"
local stopwatch = require "talux.stopwatch"

local elapsed, start

-- If the program `date` prints no fractions: the moment when the seconds change.
local function set()
  elapsed = stopwatch()
  local pipe = io.popen "date +%s.%N"
  local shown = pipe and pipe:read "*l" or ""
  if pipe then pipe:close() end
  local now = shown:find "^%d+%.%d+$" and numbers.read(shown)
  if not now then
    local before = os.time()
    repeat talux_usleep(2000) until os.time() ~= before
    now = os.time()
  end
  start = now - elapsed()
end

---Seconds since 1970, to a hundredth; the clock may be set meanwhile.
---@return number
return function()
  local now = start and start + elapsed()
  if not now or math.abs(now - os.time() - 0.5) > 0.6 then
    set()
    now = start + elapsed()
  end
  return now
end
