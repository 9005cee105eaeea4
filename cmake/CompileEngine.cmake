# Compiles the engine's one file `source` to the static library `library`, unless that is there:
# presets that compile it alike share it. `flags` are those of the compiler.
file(LOCK ${library}.lock GUARD PROCESS)
if(EXISTS ${library})
  return()
endif()
execute_process(COMMAND ${compiler} ${flags} -c ${source} -o ${library}.o COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${archiver} rcs ${library}.new ${library}.o COMMAND_ERROR_IS_FATAL ANY)
file(RENAME ${library}.new ${library})
file(REMOVE ${library}.o)
