local function crc16(words, n)
  local crc = 0xFFFF
  for i = 0, n - 1 do
    for part = 0, 1 do
      if part == 0 then
        crc = crc ~ (words[i] // 256)
      else
        crc = crc ~ (words[i] & 255)
      end
      for k = 1, 8 do
        local bit = crc & 1
        crc = crc // 2
        if bit == 1 then
          crc = crc ~ 0xA001
        end
      end
    end
  end
  return crc
end
local words = {}
local value = 1
for i = 0, 999 do
  value = (value * 75 + 74) % 65537
  words[i] = value & 0xFFFF
end
for i = 1, 60 do
  words[i] = crc16(words, 1000)
  if i % 20 == 0 then
    print(words[i])
  end
end
