# How every target is compiled. The calculations give the same digits on every processor:
# no fused multiply-add, no reordering of floating-point operations.
add_library(tarnwick_options INTERFACE)
target_compile_options(tarnwick_options INTERFACE
  -ffp-contract=off
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor
  -Wold-style-cast -Wcast-align -Woverloaded-virtual -Wdouble-promotion -Wimplicit-fallthrough)

if(TARNWICK_SANITIZE)
  # float-cast-overflow is no part of "undefined": a number beyond a whole-number type's range.
  target_compile_options(tarnwick_options INTERFACE
    -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  target_link_options(tarnwick_options INTERFACE -fsanitize=address,undefined)
  target_compile_definitions(tarnwick_options INTERFACE _GLIBCXX_ASSERTIONS)
endif()

# The one file for any Linux takes in what a desktop need not have. At a fixed address it starts
# sooner: the loader need not write its own addresses into it, 34 000 of them.
if(TARNWICK_PORTABLE AND NOT WIN32)
  add_compile_options(-ffunction-sections -fdata-sections)
  add_link_options(-static-libstdc++ -static-libgcc -no-pie -Wl,--gc-sections)
endif()
