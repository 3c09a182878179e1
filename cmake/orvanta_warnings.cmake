# Warning policy for the project's own targets (kept off the exported interface).
function(orvanta_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Werror)
endfunction()
