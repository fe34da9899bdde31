# Installed files that are made from files of this repository at configure time: manual pages with the version, and the
# changelog in Debian's form.
find_program(GZIP_PROGRAM gzip REQUIRED)
find_program(AWK_PROGRAM awk REQUIRED)

# The maker's address serves as the package's too.
file(STRINGS ${PROJECT_SOURCE_DIR}/installation/maker.toml address REGEX "^support_email = ")
string(REGEX REPLACE "^support_email = \"(.*)\"$" "The Fernwick authors <\\1>" FERNWICK_MAINTAINER "${address}")

# Writes TEXT to build/install/NAME.gz. Level 9 without a time stamp: the same text always gives the same file.
function(fernwick_gzipped name text)
  set(file ${PROJECT_BINARY_DIR}/install/${name})
  file(WRITE ${file} "${text}")
  execute_process(COMMAND ${GZIP_PROGRAM} -9nf ${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# A page in mdoc's macros, whose .Os line receives the version.
function(fernwick_install_manual page)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${page})
  file(READ ${page} text)
  string(REGEX REPLACE "\n\\.Os\n" "\n.Os Fernwick ${PROJECT_VERSION}\n" text "${text}")
  get_filename_component(name ${page} NAME)
  fernwick_gzipped(${name} "${text}")
  install(FILES ${PROJECT_BINARY_DIR}/install/${name}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endfunction()

function(fernwick_install_changelog)
  set(from packaging/fernwick-workbench.metainfo.xml CHANGELOG.md)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${from} packaging/debian/changelog.awk)
  execute_process(COMMAND ${AWK_PROGRAM} -v "maintainer=${FERNWICK_MAINTAINER}" -f packaging/debian/changelog.awk ${from}
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
  fernwick_gzipped(changelog "${text}")
  install(FILES ${PROJECT_BINARY_DIR}/install/changelog.gz DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/fernwick)
endfunction()
