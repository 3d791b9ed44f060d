local function multiply(a, b, n)
  local c = {}
  for i = 0, n - 1 do
    local row = {}
    for j = 0, n - 1 do
      local sum = 0
      for k = 0, n - 1 do
        sum = sum + a[i][k] * b[k][j]
      end
      row[j] = sum
    end
    c[i] = row
  end
  return c
end
local a, b = {}, {}
for i = 0, 199 do
  a[i], b[i] = {}, {}
  for j = 0, 199 do
    a[i][j] = (i + j) / 3
    b[i][j] = (i - j) / 7
  end
end
local c = multiply(a, b, 200)
print(math.floor(c[10][20]), math.floor(c[199][0]))
