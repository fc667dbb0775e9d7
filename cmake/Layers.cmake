# The libraries of the program from bottom to top. A library may use only what stands before it in
# this list and is named in its USES.
set(PURSEWELL_LAYERS
    core data services kestaccount kestupdate sync theme state register screens shell program)

add_library(pursewell_options INTERFACE)
target_compile_options(pursewell_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion
  $<$<BOOL:${PURSEWELL_WERROR}>:-Werror>
  # A release holds no path of the machine that built it: two builds of one commit are alike.
  $<$<CONFIG:Release>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${PROJECT_BINARY_DIR}=build>)
target_compile_definitions(pursewell_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS)
if(PURSEWELL_SANITIZE)
  target_compile_options(pursewell_options INTERFACE
    -fsanitize=${PURSEWELL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(pursewell_options INTERFACE -fsanitize=${PURSEWELL_SANITIZE})
endif()

# With src/ itself on the include path a lower library could include a higher one and still link,
# because static libraries are resolved only in the program. So each library gets an include root
# of its own, holding links to its own headers and to nothing else.
function(pursewell_include_root target folder)
  set(root ${PROJECT_BINARY_DIR}/include/${target})
  foreach(source IN LISTS ARGN)
    if(source MATCHES "\\.h$")
      file(MAKE_DIRECTORY ${root}/${folder})
      file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR}/${source} ${root}/${folder}/${source} SYMBOLIC)
    endif()
  endforeach()
  target_include_directories(${target} PUBLIC ${root})
endfunction()

# pursewell_layer(<name> FOLDER <below src/> [LIBRARY <target>] [USES <layers>] [QT <modules>]
#                 [LIBS <other libraries>] [PCH <headers>] SOURCES <files>)
function(pursewell_layer name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "FOLDER;LIBRARY" "USES;QT;LIBS;PCH;SOURCES")
  if(NOT arg_LIBRARY)
    set(arg_LIBRARY pursewell_${name})
  endif()
  list(FIND PURSEWELL_LAYERS ${name} own_rank)
  if(own_rank EQUAL -1)
    message(FATAL_ERROR "${name} is no layer; the layers are ${PURSEWELL_LAYERS}")
  endif()
  set(used_targets)
  foreach(used IN LISTS arg_USES)
    list(FIND PURSEWELL_LAYERS ${used} used_rank)
    if(used_rank EQUAL -1 OR NOT used_rank LESS own_rank)
      message(FATAL_ERROR "${name} may not use ${used}; from bottom to top: ${PURSEWELL_LAYERS}")
    endif()
    list(APPEND used_targets pursewell_${used})
  endforeach()
  list(TRANSFORM arg_QT PREPEND Qt6::)
  add_library(${arg_LIBRARY} STATIC ${arg_SOURCES})
  if(NOT arg_LIBRARY STREQUAL pursewell_${name})
    add_library(pursewell_${name} ALIAS ${arg_LIBRARY})
  endif()
  target_link_libraries(${arg_LIBRARY}
    PUBLIC ${used_targets} ${arg_QT} ${arg_LIBS}
    PRIVATE pursewell_options)
  if(arg_PCH)
    target_precompile_headers(${arg_LIBRARY} PRIVATE ${arg_PCH})
  endif()
  pursewell_include_root(${arg_LIBRARY} ${arg_FOLDER} ${arg_SOURCES})
endfunction()
