local sub = string.sub
local function isLetter(c)
  return (c >= "a" and c <= "z") or (c >= "A" and c <= "Z") or c == "_"
end
local function isDigit(c)
  return c >= "0" and c <= "9"
end
local function tokens(text)
  local n, i = #text, 1
  local names, numbers, marks, sum = 0, 0, 0, 0
  while i <= n do
    local c = sub(text, i, i)
    if c == " " or c == "\n" then
      i = i + 1
    elseif isLetter(c) then
      local start = i
      while i <= n do
        c = sub(text, i, i)
        if not isLetter(c) and not isDigit(c) then
          break
        end
        i = i + 1
      end
      if sub(text, start, i - 1) == "total" then
        sum = sum + 1
      end
      names = names + 1
    elseif isDigit(c) then
      local start = i
      while i <= n do
        if not isDigit(sub(text, i, i)) then
          break
        end
        i = i + 1
      end
      sum = sum + math.tointeger(tonumber(sub(text, start, i - 1)))
      numbers = numbers + 1
    else
      marks = marks + 1
      i = i + 1
    end
  end
  return names .. " " .. numbers .. " " .. marks .. " " .. sum
end
local parts = {}
for i = 1, 300 do
  parts[#parts + 1] = "total_" .. i .. " = total + " .. (i * 7 % 1000) .. " * (valor" .. i .. " - 12);\n"
end
local text = table.concat(parts)
for i = 1, 25 do
  print(tokens(text))
end
