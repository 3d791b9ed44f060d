local function scan(text)
  local digits, letters, others = 0, 0, 0
  for i = 1, #text do
    local c = string.byte(string.sub(text, i, i))
    if c >= 48 and c <= 57 then
      digits = digits + 1
    elseif c >= 97 and c <= 122 then
      letters = letters + 1
    else
      others = others + 1
    end
  end
  return digits * 3 + letters * 2 + others
end
local function countWord(text, word)
  local count = 0
  local place = string.find(text, word, 1, true)
  while place do
    count = count + 1
    place = string.find(text, word, place + #word, true)
  end
  return count
end
local parts = {}
for i = 1, 2000 do
  parts[#parts + 1] = "la linea " .. i .. " del texto; "
end
local text = table.concat(parts)
local total = 0
for i = 1, 40 do
  total = total + scan(text) + countWord(text, "linea")
end
print(total)
