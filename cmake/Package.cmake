# The Debian package, which scripts/package-deb builds: what Install.cmake installs, below /usr.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_PACKAGE_CONTACT "${FERNWICK_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "turns Visual Basic projects into applications for handhelds")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
  "Fernwick compiles Visual Basic 6 projects for Palm OS, Pocket PC and Linux
handhelds, checks them against their device, and packages and installs them.
It works on the real project files and changes nothing in them but what it
stores on purpose.
.
This package contains the command line program, fernwick, and the desktop with
designers for forms and an editor for code, fernwick-workbench.")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# Linked libraries are found by dpkg-shlibdeps. Those that are loaded at run time are named here: LateLibrary and dlopen.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "adduser, libfontconfig1, libssh-4, libzip4, zlib1g")
# Qt loads the icon by its plugin for SVG, and Wayland by another; without them it has its own icon and X11.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA
  ${PROJECT_SOURCE_DIR}/packaging/debian/postinst ${PROJECT_SOURCE_DIR}/packaging/debian/postrm)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
