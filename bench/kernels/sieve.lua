local function sieve(limit)
  local flags = {}
  for i = 2, limit do
    flags[i] = true
  end
  local count = 0
  for i = 2, limit do
    if flags[i] then
      count = count + 1
      for k = i + i, limit, i do
        flags[k] = false
      end
    end
  end
  return count
end
for round = 1, 5 do
  print(sieve(1000000))
end
