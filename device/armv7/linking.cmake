# Linking for 32-bit ARM. lld 14 has no such linker; lld 13's older one has, with shortcomings. The scripts beside this
# file make up for most of them: pointers, text stubs, weak imports, functions on offer. And it leaves gaps between sections as its memory
# happened to be, so the C library is told to hand out zeros (the value is the complement of what it fills with).
# Where code for Thumb ends in a jump to another library's function, it puts an instruction sequence of its own between
# that leads astray, so no function ends in such a jump.
target_compile_options(tavimo PRIVATE -fno-optimize-sibling-calls)
find_program(python3 python3 REQUIRED)
set(armv7 ${CMAKE_CURRENT_LIST_DIR})
set(linker "env MALLOC_PERTURB_=255 ld64.lld.darwinold-13 -arch armv7 -ios_version_min 7.0 -sdk_version 9.3 -dylib")

# stub_library(NAME): the library that a text stub describes, in stub_libraries of the caller.
function(stub_library name)
  set(stub ${stubs}/${name}.tbd)
  set(library ${CMAKE_CURRENT_BINARY_DIR}/${name}.dylib)
  file(STRINGS ${stub} install_name REGEX "^install-name:")
  string(REGEX REPLACE "^install-name: '(.*)'$" "\\1" install_name "${install_name}")
  # Every library but the system's own needs the system's to be linked.
  set(system $<$<NOT:$<STREQUAL:${name},libSystem>>:${CMAKE_CURRENT_BINARY_DIR}/libSystem.dylib>)
  separate_arguments(link UNIX_COMMAND "${linker}")
  add_custom_command(OUTPUT ${library}
    COMMAND ${python3} ${armv7}/stub_source.py ${stub} ${name}.s
    COMMAND ${CMAKE_CXX_COMPILER} --target=${CMAKE_CXX_COMPILER_TARGET} -c ${name}.s -o ${name}.o
    COMMAND ${link} -install_name ${install_name} ${name}.o ${system} -o ${library}
    DEPENDS ${stub} ${armv7}/stub_source.py ${system}
    COMMAND_EXPAND_LISTS VERBATIM)
  set(stub_libraries ${stub_libraries} ${library} PARENT_SCOPE)
endfunction()

foreach(name ${libraries})
  stub_library(${name})
endforeach()
add_custom_target(stub_libraries DEPENDS ${stub_libraries})
add_dependencies(tavimo stub_libraries)

list(JOIN stub_libraries " " inputs)
set(CMAKE_CXX_COMPILE_OBJECT
  "<CMAKE_CXX_COMPILER> <DEFINES> <INCLUDES> <FLAGS> -S <SOURCE> -o <OBJECT>.s"
  "${python3} ${armv7}/direct_pointers.py <OBJECT>.s"
  "<CMAKE_CXX_COMPILER> --target=${CMAKE_CXX_COMPILER_TARGET} -c <OBJECT>.s -o <OBJECT>")
set(CMAKE_CXX_CREATE_SHARED_LIBRARY
  "${linker} -dead_strip -install_name ${install_name} -exported_symbols_list ${exported_symbols} <OBJECTS> ${inputs} -o <TARGET>"
  "${python3} ${armv7}/mark_weak.py <TARGET> ${weak_imports}"
  "${python3} ${armv7}/mark_thumb.py <TARGET>")
