local function newBody(x, y, z, vx, vy, vz, mass)
  return { x = x, y = y, z = z, vx = vx * 365.24, vy = vy * 365.24, vz = vz * 365.24, mass = mass * 39.47841760435743 }
end
local sqrt = math.sqrt
local function advance(bodies, n, dt)
  for i = 0, n do
    local bi = bodies[i]
    for j = i + 1, n do
      local bj = bodies[j]
      local dx = bi.x - bj.x
      local dy = bi.y - bj.y
      local dz = bi.z - bj.z
      local distance = sqrt(dx * dx + dy * dy + dz * dz)
      local mag = dt / (distance * distance * distance)
      bi.vx = bi.vx - dx * bj.mass * mag
      bi.vy = bi.vy - dy * bj.mass * mag
      bi.vz = bi.vz - dz * bj.mass * mag
      bj.vx = bj.vx + dx * bi.mass * mag
      bj.vy = bj.vy + dy * bi.mass * mag
      bj.vz = bj.vz + dz * bi.mass * mag
    end
  end
  for i = 0, n do
    local bi = bodies[i]
    bi.x = bi.x + dt * bi.vx
    bi.y = bi.y + dt * bi.vy
    bi.z = bi.z + dt * bi.vz
  end
end
local bodies = {
  [0] = newBody(0, 0, 0, 0, 0, 0, 1),
  newBody(4.84143144246472, -1.16032004402743, -0.103622044471123, 0.00166007664274404, 0.0076990111841974, -0.0000690460016972063, 0.000954791938424327),
  newBody(8.34336671824458, 4.1247985641243, -0.403523417114321, -0.00276742510726862, 0.00499852801234917, 0.0000230417297573764, 0.000285885980666131),
  newBody(12.8943695621391, -15.1111514016986, -0.223307578892656, 0.00296460137564762, 0.0023784717395948, -0.0000296589568540238, 0.0000436624404335156),
  newBody(15.3796971148509, -25.919314609988, 0.179258772950371, 0.00268067772490389, 0.00162824170038242, -0.000095159225451972, 0.0000515138902046612),
}
for step = 1, 60000 do
  advance(bodies, 4, 0.01)
end
print(math.floor(bodies[0].x * 1000000 + 0.5))
