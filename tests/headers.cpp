// Nothing of its own: what is compiled with it are the headers that the tests share (cmake/Build.cmake).
