local total = 0
for i = 1, 300 do
  for j = 1, 300 do
    for k = 1, 300 do
      if (i + j + k) % 2 == 0 then total = total + 1 end
    end
  end
end
print(total)
