-- What the Lua tests share: expectations, and named cases that the test summary counts.
local check = {}
local failures = 0

function check.equal(got, wanted, what)
  if got == wanted or (got ~= got and wanted ~= wanted) then return end
  failures = failures + 1
  print(("%s: got %q instead of %q"):format(what, tostring(got), tostring(wanted)))
end

function check.case(name, body)
  local before = failures
  body()
  if failures == before then print("ok: " .. name) end
end

function check.finish() os.exit(failures == 0) end

return check
