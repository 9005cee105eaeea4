# Copies the file `from` to `to` unless `to` exists. It comes whole or not at all: an interrupted
# copy must not pass for the user's journal the next time.
if(NOT EXISTS ${to})
  get_filename_component(folder ${to} DIRECTORY)
  file(MAKE_DIRECTORY ${folder})
  file(COPY_FILE ${from} ${to}.new)
  file(RENAME ${to}.new ${to})
endif()
