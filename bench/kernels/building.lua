local function build(n)
  local parts = {}
  for i = 1, n do
    parts[#parts + 1] = "valor " .. i .. ";"
  end
  return table.concat(parts)
end
local total = 0
for round = 1, 20 do
  total = total + #build(50000)
end
print(total)
