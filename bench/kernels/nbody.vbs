Class Body
  Public x, y, z, vx, vy, vz, mass
End Class
Function NewBody(x, y, z, vx, vy, vz, mass)
  Dim b
  Set b = New Body
  b.x = x
  b.y = y
  b.z = z
  b.vx = vx * 365.24
  b.vy = vy * 365.24
  b.vz = vz * 365.24
  b.mass = mass * 39.47841760435743
  Set NewBody = b
End Function
Sub Advance(bodies, n, dt)
  Dim i, j, bi, bj, dx, dy, dz, distance, mag
  For i = 0 To n
    Set bi = bodies(i)
    For j = i + 1 To n
      Set bj = bodies(j)
      dx = bi.x - bj.x
      dy = bi.y - bj.y
      dz = bi.z - bj.z
      distance = Sqr(dx * dx + dy * dy + dz * dz)
      mag = dt / (distance * distance * distance)
      bi.vx = bi.vx - dx * bj.mass * mag
      bi.vy = bi.vy - dy * bj.mass * mag
      bi.vz = bi.vz - dz * bj.mass * mag
      bj.vx = bj.vx + dx * bi.mass * mag
      bj.vy = bj.vy + dy * bi.mass * mag
      bj.vz = bj.vz + dz * bi.mass * mag
    Next
  Next
  For i = 0 To n
    Set bi = bodies(i)
    bi.x = bi.x + dt * bi.vx
    bi.y = bi.y + dt * bi.vy
    bi.z = bi.z + dt * bi.vz
  Next
End Sub
Dim bodies(4), step
Set bodies(0) = NewBody(0, 0, 0, 0, 0, 0, 1)
Set bodies(1) = NewBody(4.84143144246472, -1.16032004402743, -0.103622044471123, 0.00166007664274404, 0.0076990111841974, -0.0000690460016972063, 0.000954791938424327)
Set bodies(2) = NewBody(8.34336671824458, 4.1247985641243, -0.403523417114321, -0.00276742510726862, 0.00499852801234917, 0.0000230417297573764, 0.000285885980666131)
Set bodies(3) = NewBody(12.8943695621391, -15.1111514016986, -0.223307578892656, 0.00296460137564762, 0.0023784717395948, -0.0000296589568540238, 0.0000436624404335156)
Set bodies(4) = NewBody(15.3796971148509, -25.919314609988, 0.179258772950371, 0.00268067772490389, 0.00162824170038242, -0.000095159225451972, 0.0000515138902046612)
For step = 1 To 60000
  Advance bodies, 4, 0.01
Next
WScript.Echo Round(bodies(0).x * 1000000)
