# Installation in the standard places of a Linux system: the programs in bin/,
# the shipped data in share/pluvane/ (where the programs look for it when it is
# not beside them), a desktop entry, an icon and the MIME type of networks.
# `make package` makes a .deb of the same tree with CPack.
include(GNUInstallDirs)

install(TARGETS pluvane pluvane-cli vistrel RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${PLUVANE_DATA_DIR}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/pluvane)
install(FILES ${CMAKE_SOURCE_DIR}/packaging/pluvane.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${CMAKE_SOURCE_DIR}/packaging/pluvane.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${CMAKE_SOURCE_DIR}/packaging/pluvane-mime.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME pluvane.xml)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME pluvane)
set(CPACK_PACKAGE_VENDOR "Pluvane")
set(CPACK_PACKAGE_CONTACT "Pluvane <pluvane@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Urban storm-water drainage network modelling")
set(CPACK_PACKAGE_DESCRIPTION "Draw a storm-water network over a georeferenced plan, describe \
the rain, generate the input files of the hydraulic engine, run it and read the results.")
# The programs go without their debugging symbols.
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
# The Qt 6 libraries the programs link, GDAL (the GIS layers), abseil (the
# hash maps of the big tables), and the C++ runtime.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "libqt6core6 (>= 6.4), libqt6gui6 (>= 6.4), libqt6widgets6 (>= 6.4), libqt6svg6 (>= 6.4), libqt6printsupport6 (>= 6.4), libgdal32 (>= 3.6), libabsl20220623, libstdc++6 (>= 12), libc6 (>= 2.36)")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils, shared-mime-info, desktop-file-utils")
include(CPack)
