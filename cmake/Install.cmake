# Where an install puts things. The program finds its installation tree in share/fernwick beside its bin folder.
include(GNUInstallDirs)

install(TARGETS fernwick RUNTIME DESTINATION bin)
install(DIRECTORY installation/ DESTINATION share/fernwick PATTERN "VB Toolkit/Samples" EXCLUDE)
install(DIRECTORY samples/ DESTINATION "share/fernwick/VB Toolkit/Samples")
install(FILES docs/man/fernwick.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES Apps/fernwick/completion/fernwick.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
  RENAME fernwick)

if(FERNWICK_WORKBENCH)
  install(TARGETS fernwick-workbench RUNTIME DESTINATION bin)
  install(FILES packaging/fernwick-workbench.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES packaging/fernwick-workbench.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
  install(FILES packaging/fernwick-workbench.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES packaging/fernwick-workbench.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
endif()
