-- A script without procedures; here the names are locals, as one writes them.
local flags, count, sum = {}, 0, 0
for i = 2, 200000 do flags[i] = true end
for i = 2, 200000 do
  if flags[i] then
    count = count + 1
    local k = i + i
    while k <= 200000 do
      flags[k] = false
      k = k + i
    end
  end
end
print(count)
for a = 1, 60 do
  for b = 1, 60 do
    for c = 1, 60 do
      if (a * b + c) % 7 == 3 then sum = sum + a - c end
    end
  end
end
print(sum)
local x, y = 0.0, 0.5
for i = 1, 300000 do
  x = x * 0.5 + y
  y = (x + y) * 0.25 + 1.0
end
print(math.floor(x * 1000))
