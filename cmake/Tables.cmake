# The tables of characters and code pages are generated from ICU's data by a program of the building machine, so nothing
# links ICU. A build for another machine cannot run what it compiles: it takes the file from a build for this machine.

set(FERNWICK_TABLES "" CACHE FILEPATH "The character_tables.cpp of a build for this machine, for builds for another one")

# fernwick_tables(FILE): writes FILE in the folder's binary directory.
function(fernwick_tables file)
  set(file ${CMAKE_CURRENT_BINARY_DIR}/${file})
  if(FERNWICK_TABLES)
    configure_file(${FERNWICK_TABLES} ${file} COPYONLY)
  elseif(CMAKE_CROSSCOMPILING)
    message(FATAL_ERROR "A build for another machine needs the tables of a build for this one: "
      "-DFERNWICK_TABLES=<that build>/Basic/character_tables.cpp")
  else()
    find_package(ICU REQUIRED COMPONENTS uc)
    add_executable(make_tables ${PROJECT_SOURCE_DIR}/cmake/tables/make_tables.cpp)
    target_link_libraries(make_tables PRIVATE ICU::uc)
    add_custom_command(OUTPUT ${file} COMMAND make_tables ${file} VERBATIM)
  endif()
  # One long source of data gains nothing from either.
  set_source_files_properties(${file} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON SKIP_PRECOMPILE_HEADERS ON)
endfunction()
