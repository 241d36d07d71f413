# The interface targets that carry compiler settings, and the functions that add a layer.

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

# Warnings and sanitizers; every target of ours links it.
add_library(zorvel_options INTERFACE)
target_compile_options(zorvel_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                                -Wold-style-cast -Wcast-qual -Woverloaded-virtual)
if(ZORVEL_WARNINGS_AS_ERRORS)
  target_compile_options(zorvel_options INTERFACE -Werror)
endif()
if(ZORVEL_SANITIZE)
  # Instrumented code of the standard library looks uninitialised to the compiler where it is not.
  target_compile_options(zorvel_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                  -fno-omit-frame-pointer -Wno-maybe-uninitialized)
  target_link_options(zorvel_options INTERFACE -fsanitize=address,undefined)
endif()
if(ZORVEL_SANITIZE_THREADS)
  target_compile_options(zorvel_options INTERFACE -fsanitize=thread -fno-omit-frame-pointer)
  target_link_options(zorvel_options INTERFACE -fsanitize=thread)
endif()
if(ZORVEL_FUZZ)
  # Everything tells the fuzzer where it has been; only the programs of fuzz/ bring the fuzzer itself.
  target_compile_options(zorvel_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined
                                                  -fno-omit-frame-pointer)
  target_link_options(zorvel_options INTERFACE -fsanitize=address,undefined)
endif()

# zorvel_check_headers(TARGET FOLDER...): where ZORVEL_CHECK_HEADERS says so, TARGET compiles a source for each header of the folders that
# includes nothing else, so that each of them stands on its own.
function(zorvel_check_headers target)
  if(NOT ZORVEL_CHECK_HEADERS)
    return()
  endif()
  foreach(folder ${ARGN})
    file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/${folder}/*.h)
    foreach(header ${headers})
      set(source ${PROJECT_BINARY_DIR}/header-checks/${header}.cpp)
      # Those of SDK and Windows are included by their names there.
      string(REGEX REPLACE "^(sdk|winapi)/" "" name ${header})
      file(CONFIGURE OUTPUT ${source} CONTENT "#include \"@name@\"\n" @ONLY)
      target_sources(${target} PRIVATE ${source})
    endforeach()
  endforeach()
endfunction()

# Headers named as in the 3ds Max SDK and as in Windows: the contract between the plug-in and either host.
add_library(zorvel_sdk INTERFACE)
target_include_directories(zorvel_sdk SYSTEM INTERFACE ${PROJECT_SOURCE_DIR}/sdk)
add_library(zorvel_winapi INTERFACE)
target_include_directories(zorvel_winapi SYSTEM INTERFACE ${PROJECT_SOURCE_DIR}/winapi)
target_compile_definitions(zorvel_winapi INTERFACE UNICODE _UNICODE)
target_link_libraries(zorvel_sdk INTERFACE zorvel_winapi)

# zorvel_plugin_folder(NAME SOURCE... SEES FOLDER... LIBRARIES LIBRARY...): the sources of one plug-in folder, compiled as C++14 for both
# log sinks. SEES names the plug-in folders that it may include: they are reached through links, so that nothing else of the tree
# can be included by accident. LIBRARIES: zorvel_sdk or zorvel_winapi, and what comes from outside.
function(zorvel_plugin_folder name)
  cmake_parse_arguments(FOLDER "" "" "SEES;LIBRARIES" ${ARGN})
  set(includes ${PROJECT_BINARY_DIR}/plugin-includes/${name})
  file(REMOVE_RECURSE ${includes})
  file(MAKE_DIRECTORY ${includes})
  foreach(folder ${name} ${FOLDER_SEES})
    file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${folder} ${includes}/${folder} SYMBOLIC)
  endforeach()
  add_library(zorvel_${name}_objects OBJECT ${FOLDER_UNPARSED_ARGUMENTS})
  target_include_directories(zorvel_${name}_objects PRIVATE ${includes})
  target_link_libraries(zorvel_${name}_objects PRIVATE zorvel_options ${FOLDER_LIBRARIES})
  set_target_properties(zorvel_${name}_objects PROPERTIES CXX_STANDARD 14 UNITY_BUILD ${ZORVEL_UNITY})
  zorvel_check_headers(zorvel_${name}_objects ${name})
endfunction()

# zorvel_host_layer(NAME SEES LAYER... LIBRARIES LIBRARY...): the sources of one layer of the embedded host. SEES names the layers that it
# may include: as with the plug-in's folders, they are reached through links and nothing else is.
function(zorvel_host_layer name)
  cmake_parse_arguments(LAYER "" "" "SEES;LIBRARIES" ${ARGN})
  set(includes ${PROJECT_BINARY_DIR}/host-includes/${name})
  file(REMOVE_RECURSE ${includes})
  file(MAKE_DIRECTORY ${includes}/host)
  foreach(layer ${name} ${LAYER_SEES})
    file(CREATE_LINK ${PROJECT_SOURCE_DIR}/host/${layer} ${includes}/host/${layer} SYMBOLIC)
  endforeach()
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/host/${name}/*.cpp)
  add_library(zorvel_host_${name} OBJECT ${sources})
  target_include_directories(zorvel_host_${name} PRIVATE ${includes})
  target_link_libraries(zorvel_host_${name} PRIVATE zorvel_options ${LAYER_LIBRARIES})
  set_target_properties(zorvel_host_${name} PROPERTIES CXX_STANDARD 17)
  zorvel_check_headers(zorvel_host_${name} host/${name})
  set_property(GLOBAL APPEND PROPERTY ZORVEL_HOST_OBJECTS $<TARGET_OBJECTS:zorvel_host_${name}>)
endfunction()

# zorvel_assemble_plugin(): the plug-in's code with the log sink that ships and with the one that records. The sinks are two
# sources with the same function, so the choice is made when linking.
function(zorvel_assemble_plugin)
  set(objects)
  foreach(folder core model repository scene ui plugin)
    list(APPEND objects $<TARGET_OBJECTS:zorvel_${folder}_objects>)
  endforeach()
  foreach(variant "zorvel_plugin|Debug.cpp" "zorvel_plugin_diagnostic|DebugRecording.cpp")
    string(REPLACE "|" ";" parts ${variant})
    list(GET parts 0 target)
    list(GET parts 1 sink)
    add_library(${target} STATIC ${objects} ${PROJECT_SOURCE_DIR}/plugin/${sink})
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${target} PRIVATE zorvel_options PUBLIC zorvel_sdk zorvel_host Qt5::Widgets LibXml2::LibXml2)
    set_target_properties(${target} PROPERTIES CXX_STANDARD 14)
  endforeach()
endfunction()

# zorvel_plugin_module(TARGET FILE LIBRARY SOURCE...): the loadable module FILE.gup with one of the two log sinks. The text of its resource
# script goes in as it stands: the host reads the string table from it, as Windows reads the compiled one.
function(zorvel_plugin_module target file library)
  file(READ ${PROJECT_SOURCE_DIR}/plugin/zorvel.rc script)
  file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/generated/ModuleResourceScript.cpp
       CONTENT "extern \"C\" const char* ModuleResourceScript() { return R\"rc(@script@)rc\"; }\n" @ONLY)
  set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/plugin/zorvel.rc)
  add_library(${target} MODULE ${PROJECT_BINARY_DIR}/generated/ModuleResourceScript.cpp ${ARGN})
  target_link_libraries(${target} PRIVATE zorvel_options -Wl,--whole-archive ${library} -Wl,--no-whole-archive)
  set_target_properties(${target} PROPERTIES PREFIX "" OUTPUT_NAME ${file} SUFFIX .gup CXX_STANDARD 14
                                             LIBRARY_OUTPUT_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  file(COPY ${PROJECT_SOURCE_DIR}/plugin/icons DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
endfunction()

# zorvel_test(NAME SOURCE... [OWN_MAIN] LIBRARIES LIBRARY...): one GoogleTest program, run as one test. LIBRARIES is what it links
# besides. OWN_MAIN: its sources hold the main function.
function(zorvel_test name)
  cmake_parse_arguments(TEST "OWN_MAIN" "" "LIBRARIES" ${ARGN})
  set(main GTest::gtest_main)
  if(TEST_OWN_MAIN)
    set(main GTest::gtest)
  endif()
  add_executable(${name} ${TEST_UNPARSED_ARGUMENTS})
  target_link_libraries(${name} PRIVATE zorvel_options ${TEST_LIBRARIES} GTest::gmock ${main})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  set_target_properties(${name} PROPERTIES CXX_STANDARD 17 UNITY_BUILD ${ZORVEL_UNITY})
  add_test(NAME ${name} COMMAND ${name} --gtest_output=xml:${PROJECT_BINARY_DIR}/test-results/${name}.xml)
endfunction()
