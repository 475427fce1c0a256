# zeltrona_add_library(<room> SOURCES ... LINKS ...)
# One static library to a room, named zeltrona_<room>; headers are included by their path from the root.
function(zeltrona_add_library room)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  set(target zeltrona_${room})
  add_library(${target} STATIC ${ARG_SOURCES})
  target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR})
  target_link_libraries(${target} PUBLIC ${ARG_LINKS} PRIVATE zeltrona_warnings zeltrona_exact_math)
  if(NOT ZELTRONA_CORE_ONLY AND ARG_LINKS MATCHES "Qt6::")
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
  endif()
endfunction()

# zeltrona_add_program(<name> SOURCES ... LINKS ...): an executable in the program folder (build/.../bin).
function(zeltrona_add_program name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} zeltrona_warnings)
  target_link_options(${name} PRIVATE -Wl,-z,relro,-z,now) # addresses are settled at start and then kept from writes
endfunction()

# zeltrona_add_test(<room> SOURCES ... LINKS ... [MAIN file])
# One test program to a room, zeltrona_<room>_tests, every case of it a test of ctest. Rooms with windows bring a
# MAIN of their own that starts the toolkit; the others take the test library's.
function(zeltrona_add_test room)
  cmake_parse_arguments(ARG "" "MAIN" "SOURCES;LINKS" ${ARGN})
  set(target zeltrona_${room}_tests)
  add_executable(${target} ${ARG_SOURCES} ${ARG_MAIN})
  target_include_directories(${target} PRIVATE ${CMAKE_SOURCE_DIR})
  target_compile_definitions(${target} PRIVATE ZELTRONA_SOURCE_DIR="${CMAKE_SOURCE_DIR}"
                                               ZELTRONA_BINARY_DIR="${CMAKE_BINARY_DIR}")
  target_link_libraries(${target} PRIVATE ${ARG_LINKS} GTest::gtest GTest::gmock zeltrona_warnings)
  # What the tests call is optimised and checked like the program; in the tests themselves that only costs minutes.
  target_compile_options(${target} PRIVATE -O0)
  if(ZELTRONA_ASAN)
    target_compile_options(${target} PRIVATE -fno-sanitize=undefined)
  endif()
  if(NOT ARG_MAIN)
    target_link_libraries(${target} PRIVATE GTest::gtest_main)
  endif()
  if(NOT ZELTRONA_CORE_ONLY AND ARG_LINKS MATCHES "Qt6::|zeltrona_(session|dialogs|platform)")
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
  endif()
  set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  gtest_discover_tests(${target} TEST_PREFIX ${room}. DISCOVERY_TIMEOUT 120
    # one variable to a property: a list would be taken apart on its way into the test file, and the time limit lost
    PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen ENVIRONMENT_MODIFICATION LC_ALL=set:C.UTF-8 TIMEOUT 300)
endfunction()
