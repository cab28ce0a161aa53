-- Follows the links between the pages: every file and every heading or anchor that one points to is there.
--   links.lua FOLDER PAGE..
local folder, wrong, anchorsOf = arg[1], 0, {}

local function read(path)
  local file = io.open(path)
  if not file then return end
  local text = file:read "*a" -- nil for a directory
  file:close()
  return text or ""
end

-- Headings become anchors: small letters, blanks as "-", other signs but "-" and "_" left out.
local function anchors(path)
  if not anchorsOf[path] then
    local found = {}
    for line in (read(path) or ""):gmatch "[^\n]+" do
      for id in line:gmatch 'id="([^"]+)"' do found[id] = true end
      local heading = line:match "^#+ (.+)$"
      if heading then found[heading:lower():gsub("[^%w%s_\128-\255-]", ""):gsub(" ", "-")] = true end
    end
    anchorsOf[path] = found
  end
  return anchorsOf[path]
end

for k = 2, #arg do
  local page = folder .. "/" .. arg[k]
  local text = assert(read(page), page):gsub("```.-```", ""):gsub("`[^`\n]*`", "")
  for target in text:gmatch "%]%(([^)%s]+)%)" do
    local file, anchor = target:match "^([^#]*)#?(.*)$"
    local path = file == "" and page or page:match "^(.*)/" .. "/" .. file
    if not file:find "^%a+:" and (not read(path) or anchor ~= "" and not anchors(path)[anchor]) then
      print(arg[k] .. " points to " .. target)
      wrong = wrong + 1
    end
  end
end
os.exit(wrong == 0)
