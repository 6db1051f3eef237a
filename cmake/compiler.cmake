# One set of warnings and of arithmetic rules for every target of the project.

add_library(kelvor_options INTERFACE)
target_compile_options(
  kelvor_options
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wconversion
            -Wsign-conversion
            -Wold-style-cast
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            -Wundef
            $<$<BOOL:${KELVOR_WARNINGS_ARE_ERRORS}>:-Werror>
            # The same digits on every machine: no fused multiply-add, no reordering.
            -ffp-contract=off)

# GCC 12 takes "[" + std::string(...) for a copy that overlaps itself or ends beyond its text (GCC bug 105651):
# fully optimised, and where the standard headers are precompiled.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(kelvor_options INTERFACE -Wno-restrict -Wno-array-bounds -Wno-stringop-overflow)
endif()

if(KELVOR_SANITIZE)
  target_compile_options(
    kelvor_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                             -fno-omit-frame-pointer
                             # Dear to compile, and of what they find most is an address that the other one finds.
                             -fno-sanitize=null,alignment,object-size,vptr
                             # What the sanitizers put in looks to GCC like a use before a value is there.
                             -Wno-maybe-uninitialized)
  target_link_options(kelvor_options INTERFACE -fsanitize=address,undefined)
endif()
