# How every file of the project is compiled. zolv_core passes these flags on to whatever links it.
add_library(zolv_flags INTERFACE)

# Every machine gives the same digits: no fused multiply-add, and no fast-math, whatever the caller's flags say.
# GCC 12 loses a rounding to single where it vectorises two lines of a double stored as float and read as double again.
target_compile_options(zolv_flags INTERFACE -fno-fast-math -ffp-contract=off
  $<$<CXX_COMPILER_ID:GNU>:-fno-tree-slp-vectorize>)

# Without -Wdouble-promotion: figures stored single and worked in double are this program's daily bread.
# Without -Wnull-dereference, and with GCC without -Wrestrict ("text" + string): false alarms from inside the standard
# library.
target_compile_options(zolv_flags INTERFACE
  -Werror
  -Wall -Wextra -Wpedantic
  -Wconversion -Wsign-conversion
  -Wshadow
  -Wold-style-cast -Wcast-align -Wcast-qual
  -Wnon-virtual-dtor -Woverloaded-virtual
  -Wimplicit-fallthrough
  -Wunused
  $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wduplicated-branches -Wlogical-op -Wno-restrict>)

# A build with asserts also checks every index into the standard containers.
target_compile_definitions(zolv_flags INTERFACE $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)

# A double turned into an integer out of range is a fault here; a division by zero is not, it gives infinity on purpose.
if(ZOLV_SANITIZE)
  set(sanitize -fsanitize=address,undefined,float-cast-overflow -fno-sanitize=float-divide-by-zero
      -fno-sanitize-recover=all)
  target_compile_options(zolv_flags INTERFACE ${sanitize} -fno-omit-frame-pointer)
  target_link_options(zolv_flags INTERFACE ${sanitize})
endif()

# A program for Windows needs nothing beside it.
if(WIN32)
  target_compile_definitions(zolv_flags INTERFACE WIN32_LEAN_AND_MEAN NOMINMAX)
  target_link_options(zolv_flags INTERFACE -static)
endif()

# The fuzzer learns from what an input reaches. The words that it would learn from comparisons, at twice the time, stand
# in its dictionaries.
if(ZOLV_FUZZ)
  target_compile_options(zolv_flags INTERFACE -fsanitize-coverage=inline-8bit-counters,pc-table)
endif()
