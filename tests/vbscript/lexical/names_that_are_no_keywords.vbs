' Property, Error, Explicit, Step and Default are ordinary names where no statement needs them.
Property = 1
Error = 2
Explicit = 3
Step = 4
Default = 5
WScript.Echo Property + Error + Explicit + Step + Default '> 15
