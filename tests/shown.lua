-- A page shows what a script prints: shown.lua PAGE SCRIPT
local page, lines = assert(io.open(arg[1])):read "*a", {}
function print(...) lines[#lines + 1] = table.concat({...}, "\t") .. "\n" end
dofile(arg[2])
local printed = table.concat(lines)
assert(page:find("```text\n" .. printed .. "```", 1, true), arg[1] .. " does not show what " .. arg[2] .. " prints:\n" .. printed)
