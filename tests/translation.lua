-- A page and its German translation have the same structure: levels of headings, code blocks, pictures, list items and
-- table rows in the same order.
--   translation.lua PAGE TRANSLATION
local function structure(path)
  local parts, code = {}, nil
  for line in io.lines(path) do
    if code then code = code .. "\n" .. line else code = line:match "^```.+" end
    if not code then
      parts[#parts + 1] = line:match "^(#+) " or line:match "^!%[.*(%b())$" or line:match "^|" or line:match "^%- "
    elseif line == "```" then parts[#parts + 1], code = code, nil end
  end
  return parts
end

local page, translation = structure(arg[1]), structure(arg[2])
assert(#page > 0, arg[1])
for k = 1, math.max(#page, #translation) do
  assert(page[k] == translation[k], ("%s has\n%s\nand %s\n%s"):format(arg[1], page[k], arg[2], translation[k]))
end
