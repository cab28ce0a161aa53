-- A page and its German translation have the same structure: levels of headings, code blocks, pictures, numbers of list
-- items and of table rows under each heading.
--   translation.lua PAGE TRANSLATION
local function structure(path)
  local parts, code = {}, nil
  local function count(kind) -- of lines of one kind, as one part under each heading
    local last = #parts
    while last > 0 and not parts[last]:find "^#" and not parts[last]:find("^" .. kind .. " ") do last = last - 1 end
    local number = last > 0 and parts[last]:match("^" .. kind .. " (%d+)$")
    if number then parts[last] = kind .. " " .. number + 1 else parts[#parts + 1] = kind .. " 1" end
  end
  for line in io.lines(path) do
    if code then code = code .. "\n" .. line else code = line:match "^```.+" end
    if code then
      if line == "```" then parts[#parts + 1], code = code, nil end
    elseif line:find "^#+ " then parts[#parts + 1] = line:match "^#+"
    elseif line:find "^!%[" then parts[#parts + 1] = line:match "%b()$"
    elseif line:find "^|" then count "row"
    elseif line:find "^%- " then count "item"
    end
  end
  return parts
end

local page, translation = structure(arg[1]), structure(arg[2])
assert(#page > 0, arg[1])
for k = 1, math.max(#page, #translation) do
  if page[k] ~= translation[k] then
    print(("%s has\n%s\nand %s\n%s"):format(arg[1], page[k], arg[2], translation[k]))
    os.exit(1)
  end
end
