local Tree = {}
Tree.__index = Tree
function Tree.new()
  return setmetatable({ root = nil, n = 0 }, Tree)
end
function Tree:insert(key)
  local made = { key = key, left = nil, right = nil }
  if self.root == nil then
    self.root = made
    self.n = 1
    return
  end
  local at = self.root
  while true do
    if key == at.key then
      return
    end
    if key < at.key then
      if at.left == nil then
        at.left = made
        break
      end
      at = at.left
    else
      if at.right == nil then
        at.right = made
        break
      end
      at = at.right
    end
  end
  self.n = self.n + 1
end
function Tree:sumUnder(at, depth)
  if at == nil then
    return 0
  end
  return self:sumUnder(at.left, depth + 1) + self:sumUnder(at.right, depth + 1) + (at.key % 100) * depth
end
function Tree:sum()
  return self:sumUnder(self.root, 1)
end
for round = 1, 8 do
  local t = Tree.new()
  local key = 1
  for i = 1, 12000 do
    key = (key * 137 + 71) % 65537
    t:insert(key)
  end
  print(t.n, t:sum())
end
