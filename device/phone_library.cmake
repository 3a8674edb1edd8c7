# How the plug-in is linked for the phone: against stubs that name each library's symbols, so that a wrong name fails
# here and not on a phone, and with nothing exported but what tavimo/exports.txt lists. Included after the library's
# own target, in its folder.
set(stubs ${CMAKE_CURRENT_LIST_DIR}/stubs)
set(libraries libSystem libobjc Foundation CoreGraphics UIKit CydiaSubstrate)
set(install_name /Library/MobileSubstrate/DynamicLibraries/Tavimo.dylib)
# What some host may lack; the plug-in asks before it calls.
set(weak_imports _CGColorGetNumberOfComponents)

file(STRINGS ${PROJECT_SOURCE_DIR}/tavimo/exports.txt exports)
list(TRANSFORM exports PREPEND _)
list(JOIN exports "\n" exports)
set(exported_symbols ${CMAKE_CURRENT_BINARY_DIR}/exported_symbols)
file(CONFIGURE OUTPUT ${exported_symbols} CONTENT "${exports}\n")

set_target_properties(tavimo PROPERTIES PREFIX "" OUTPUT_NAME Tavimo)
# An exception of the host passes through the plug-in's frames; without tables it would end the process.
target_compile_options(tavimo PRIVATE -funwind-tables)

if(TAVIMO_DEVICE_ARCH STREQUAL armv7)
  include(${CMAKE_CURRENT_LIST_DIR}/armv7/linking.cmake)
else()
  list(TRANSFORM libraries REPLACE "(.+)" "${stubs}/\\1.tbd" OUTPUT_VARIABLE inputs)
  set_target_properties(tavimo PROPERTIES LINK_DEPENDS "${inputs}")
  list(JOIN inputs " " inputs)
  string(CONCAT CMAKE_CXX_CREATE_SHARED_LIBRARY
    "ld64.lld-14 -arch arm64 -platform_version ios 7.0 9.3 -dylib -dead_strip -no_adhoc_codesign -headerpad 0x100 "
    "-install_name ${install_name} -exported_symbols_list ${exported_symbols} <OBJECTS> ${inputs} -o <TARGET>")
endif()
