# lumen_library(<folder> DEPENDS <targets...>)
# One static library per source folder: lumen_<folder>, built from every
# .cpp/.h of src/<folder>. New files join without editing CMake.
function(lumen_library folder)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS
    ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h)
  add_library(lumen_${folder} STATIC ${sources})
  target_include_directories(lumen_${folder} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(lumen_${folder} PUBLIC lumen_build_settings ${ARG_DEPENDS})
endfunction()

# lumen_tests(<folder> DEPENDS <targets...>)
# One Qt Test executable per tests/<folder>/tst_*.cpp, registered with CTest.
# Tests of windows are named tst_Form*.cpp and labelled "window"; tests that
# drive the real Qt Multimedia and WebEngine are named tst_Qt*.cpp and labelled
# "engine" (GStreamer, PulseAudio and Chromium leak and mismatch their own
# allocations under the address sanitizer); the others are labelled "logic"
# (the sanitizer build runs those).
# Tests run headless; the environment comes from scripts/test, and the
# variables below make a bare `ctest` work too.
function(lumen_tests folder)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB tests CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/tst_*.cpp)
  foreach(test_source IN LISTS tests)
    get_filename_component(name ${test_source} NAME_WE)
    set(target ${folder}_${name})
    add_executable(${target} ${test_source})
    target_link_libraries(${target} PRIVATE lumen_test_support ${ARG_DEPENDS} Qt6::Test)
    add_test(NAME ${folder}.${name} COMMAND ${target})
    if(name MATCHES "^tst_Form")
      set(kind window)
    elseif(name MATCHES "^tst_Qt")
      set(kind engine)
    else()
      set(kind logic)
    endif()
    set_tests_properties(${folder}.${name} PROPERTIES
      LABELS "${folder};${kind}"
      TIMEOUT 300
      ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QTWEBENGINE_DISABLE_SANDBOX=1;LC_ALL=C.UTF-8")
  endforeach()
endfunction()
