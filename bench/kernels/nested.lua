local function run(n)
  local x = 0
  for a = 1, n do
    for b = 1, n do
      for c = 1, n do
        for d = 1, n do
          x = x + 1
        end
      end
      if x > 1000000 then
        x = x - 1000000
      end
    end
  end
  print(x)
end
run(52)
