local function quicksort(a, lo, hi)
  local i, j = lo, hi
  local pivot = a[(lo + hi) // 2]
  while i <= j do
    while a[i] < pivot do
      i = i + 1
    end
    while a[j] > pivot do
      j = j - 1
    end
    if i <= j then
      local t = a[i]
      a[i] = a[j]
      a[j] = t
      i = i + 1
      j = j - 1
    end
  end
  if lo < j then quicksort(a, lo, j) end
  if i < hi then quicksort(a, i, hi) end
end
local values = {}
local last = 42
for n = 0, 299999 do
  last = (last * 421 + 1663) % 7875
  values[n] = last * 100 + n % 100
end
quicksort(values, 0, 299999)
for n = 1, 299999 do
  if values[n - 1] > values[n] then print("mal") end
end
print(values[0], values[150000], values[299999])
