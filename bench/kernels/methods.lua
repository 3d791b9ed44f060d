local Counter = {}
Counter.__index = Counter
function Counter.new()
  return setmetatable({ total = 0, step = 1 }, Counter)
end
function Counter:advance(by)
  self.total = self.total + by * self.step
end
function Counter:plus(n)
  return self.total + n
end
function Counter:getTotal()
  return self.total
end
local function run(n)
  local c = Counter.new()
  local sum = 0
  for i = 1, n do
    c:advance(2)
    sum = sum + c:plus(i) % 7
  end
  print(c:getTotal(), sum)
end
run(3000000)
