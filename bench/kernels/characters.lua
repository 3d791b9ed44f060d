local sub, byte, find = string.sub, string.byte, string.find
local function vowels(text)
  local count = 0
  for i = 1, #text do
    local c = sub(text, i, i)
    if c == "a" or c == "e" or c == "i" or c == "o" or c == "u" then
      count = count + 1
    end
  end
  return count
end
local function deepest(text)
  local depth, most = 0, 0
  for i = 1, #text do
    local c = sub(text, i, i)
    if c == "(" then
      depth = depth + 1
      if depth > most then
        most = depth
      end
    elseif c == ")" then
      depth = depth - 1
    end
  end
  return most
end
local function members(text, among)
  local count = 0
  for i = 1, #text do
    if find(among, sub(text, i, i), 1, true) then
      count = count + byte(sub(text, i, i)) % 7
    end
  end
  return count
end
local function turned(text)
  local result = {}
  for i = #text, 1, -1 do
    result[#result + 1] = sub(text, i, i)
  end
  return table.concat(result)
end
local parts = {}
for i = 1, 200 do
  parts[#parts + 1] = "f(" .. i .. ", (g(abecedario) * 3)) "
end
local text = table.concat(parts)
for i = 1, 30 do
  print(vowels(text), deepest(text), members(text, "0123456789+-*/"), sub(turned(text), -3))
end
