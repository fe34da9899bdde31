# Where an install puts things. The program finds its installation tree in share/fernwick beside its bin folder.
include(GNUInstallDirs)
include(DebianFiles)
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

install(TARGETS fernwick RUNTIME DESTINATION bin)
install(DIRECTORY installation/ DESTINATION share/fernwick PATTERN "VB Toolkit/Samples" EXCLUDE)
install(DIRECTORY samples/ DESTINATION "share/fernwick/VB Toolkit/Samples")
fernwick_install_manual(docs/man/fernwick.1)
install(FILES Apps/fernwick/completion/fernwick.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
  RENAME fernwick)
install(FILES Apps/fernwick/completion/fernwick.zsh DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions
  RENAME _fernwick)
install(FILES Apps/fernwick/completion/fernwick.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
# The documents that Debian expects of a package; maintainer scripts are in Package.cmake.
install(FILES packaging/debian/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/fernwick)
fernwick_install_changelog()

if(FERNWICK_WORKBENCH)
  install(TARGETS fernwick-workbench RUNTIME DESTINATION bin)
  fernwick_install_manual(docs/man/fernwick-workbench.1)
  install(FILES packaging/fernwick-workbench.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES packaging/fernwick-workbench.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
  install(FILES packaging/fernwick-workbench.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES packaging/fernwick-workbench.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
endif()
