local count, check = 0, 0
local function swap(list, i, j)
  local kept = list[i]
  list[i] = list[j]
  list[j] = kept
end
local function permute(list, k, n)
  if k == n then
    count = count + 1
    check = (check * 3 + list[0] * list[n]) % 65521
    return
  end
  for i = k, n do
    swap(list, k, i)
    permute(list, k + 1, n)
    swap(list, k, i)
  end
end
local list = {}
for i = 0, 8 do
  list[i] = i + 1
end
permute(list, 0, 8)
print(count, check)
