# The program and its folder.
