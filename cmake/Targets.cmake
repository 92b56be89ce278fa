# Helpers that make targets of whole folders, so that a new file needs no line here.

function(orlo_compile_options target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wconversion -Wshadow)
  if(ORLO_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  # g++ 12 takes appending to a std::string for an overlapping copy.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(${target} PRIVATE -Wno-restrict)
  endif()
  # To clang -Wconversion also means signs, to g++ it does not.
  if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    target_compile_options(${target} PRIVATE -Wno-sign-conversion)
  endif()
  if(ORLO_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=address,undefined,fuzzer-no-link
      -fno-sanitize-recover=undefined -fno-omit-frame-pointer -O1 -g)
    target_link_options(${target} PRIVATE -fsanitize=address,undefined)
  endif()
endfunction()

# orlo_library(NAME FOLDER...): a static library of all sources in the folders, front ends' main.cpp left out.
function(orlo_library target)
  set(sources)
  foreach(folder IN LISTS ARGN)
    file(GLOB found CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${folder}/*.cpp")
    list(APPEND sources ${found})
  endforeach()
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(${target} STATIC ${sources})
  target_include_directories(${target} PUBLIC "${CMAKE_SOURCE_DIR}/src")
  orlo_compile_options(${target})
endfunction()

# orlo_program(NAME MAIN LIBRARY...): a program of one main file.
function(orlo_program target main)
  add_executable(${target} ${main})
  target_link_libraries(${target} PRIVATE ${ARGN})
  orlo_compile_options(${target})
endfunction()

# orlo_tool(NAME FOLDER): a program of its own folder that uses nothing of the product.
function(orlo_tool target folder)
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${folder}/*.cpp")
  if(sources)
    add_executable(${target} ${sources})
    target_include_directories(${target} PRIVATE "${CMAKE_SOURCE_DIR}/${folder}")
    orlo_compile_options(${target})
  endif()
endfunction()
