# Appends a file's SHA-256, as 64 hexadecimal digits, to the file.
file(SHA256 ${file} sum)
file(APPEND ${file} ${sum})
