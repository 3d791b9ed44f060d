local function fill(n)
  local d, count = {}, 0
  for i = 1, n do
    local key = "clave" .. (i % 5000)
    if d[key] ~= nil then
      d[key] = d[key] + i
    else
      d[key] = i
      count = count + 1
    end
  end
  return count + d["clave17"]
end
for round = 1, 10 do
  print(fill(100000))
end
