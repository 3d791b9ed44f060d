local function inside(size, limit)
  local count = 0
  for row = 0, size - 1 do
    local ci = 2.0 * row / size - 1.0
    for column = 0, size - 1 do
      local cr = 2.0 * column / size - 1.5
      local zr, zi, zr2, zi2, k = 0.0, 0.0, 0.0, 0.0, 0
      while k < limit and zr2 + zi2 <= 4.0 do
        zi = 2.0 * zr * zi + ci
        zr = zr2 - zi2 + cr
        zr2 = zr * zr
        zi2 = zi * zi
        k = k + 1
      end
      if k == limit then
        count = count + 1
      end
    end
  end
  return count
end
print(inside(200, 120))
