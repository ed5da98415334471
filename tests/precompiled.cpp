// Has nothing of its own: compiling it makes the precompiled headers of the test programs.
