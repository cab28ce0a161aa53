-- A script of the crowd: does its work again and again and prints a line each time.
local talux = require "talux"

local work = {}
function work.set(k)
  talux.set("Uearth", 10 + k % 80)
  talux.update()
end
function work.change(k)
  talux.apply {Uearth = 10 + k % 80, Name = ("Feeder %d"):format(k), qu2_Ice = 5 + k % 7}
  talux.get "U1_prim"
end
function work.save() talux.save() end
function work.save_all()
  talux.save_sec()
  talux.save_ip()
end
function work.load()
  talux.load "parameter.ini"
  talux.load_sec()
end

talux.every(20, function(k)
  local done, reason = pcall(work[arg[1]], k)
  print(done and "done" or "refused: " .. reason:gsub("^.-:%d+: ", ""))
  io.flush()
end)
