-- Commissions a feeder from a table: all settings or none, a protocol in German, made live and saved.
--
--   scripts/run.sh --root DIR examples/commissioning.lua     the files are in DIR afterwards
local talux = require "talux"

local plan = {
  Name = "UW Nord", Abg = "Abgang 7", Language = "Deutsch",
  U12 = 20000, knu = {200, 200, 200, [0] = 115}, kni = {150, 150, 150, [0] = 60},
  Uearth = 35, Uearth_SigDel = 0.5,
  qu2_active = true, qu2_Ice = 7.5, qu2_SigDur = 2,
  cos_active = true, cos_Iw_min = 1.5,
  BAassign = {[3] = "qu2 ->F", [4] = "qu2 ->BB"},
  NTP1 = "192.168.55.3",
}

local good, changes = pcall(talux.apply, plan)
if not good then
  io.stderr:write("Nichts geändert:\n", changes, "\n")
  os.exit(1)
end
talux.save()    -- the pending settings become live, and last
talux.save_ip() -- addresses have a file of their own

print(("Inbetriebnahme %s, %s\n%s %s\n"):format(talux.get "Name", talux.get "Abg", talux.get "Date", talux.get "Time"))
print(talux.protocol(changes, "de"))
print(("\n%d Einstellungen geändert, %d weichen vom Werk ab"):format(#changes, #talux.changed()))
