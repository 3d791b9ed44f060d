local sub = string.sub
local function distance(a, b)
  local n, m = #a, #b
  local before, now = {}, {}
  for j = 0, m do
    before[j] = j
  end
  for i = 1, n do
    now[0] = i
    for j = 1, m do
      local cost
      if sub(a, i, i) == sub(b, j, j) then
        cost = 0
      else
        cost = 1
      end
      local best = before[j - 1] + cost
      if before[j] + 1 < best then
        best = before[j] + 1
      end
      if now[j - 1] + 1 < best then
        best = now[j - 1] + 1
      end
      now[j] = best
    end
    for j = 0, m do
      before[j] = now[j]
    end
  end
  return before[m]
end
local a, b, sum = "", "", 0
for i = 1, 40 do
  a = a .. string.char(97 + (i * 7) % 26)
  b = b .. string.char(97 + (i * 11 + 3) % 26)
end
for i = 1, 250 do
  sum = sum + distance(a .. i, b)
end
print(sum)
