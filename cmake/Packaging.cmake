# Installing the program, and the Debian package made of what is installed:
#   cmake --install build/release --prefix /usr/local
#   cpack --config build/release/CPackConfig.cmake -B build/release
include(GNUInstallDirs)
set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(desktop_id com.kestrelwood.pursewell)

configure_file(${packaging}/changelog.in ${PROJECT_BINARY_DIR}/changelog @ONLY)

# Compressed as Debian wants it; without a time stamp, so that two builds are alike.
set(compressed)
foreach(file IN ITEMS ${packaging}/pursewell.1 ${PROJECT_BINARY_DIR}/changelog)
  cmake_path(GET file FILENAME name)
  add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/${name}.gz
    COMMAND gzip -9 --no-name --stdout ${file} > ${PROJECT_BINARY_DIR}/${name}.gz
    DEPENDS ${file}
    VERBATIM)
  list(APPEND compressed ${PROJECT_BINARY_DIR}/${name}.gz)
endforeach()
add_custom_target(pursewell_papers ALL DEPENDS ${compressed})

configure_file(${packaging}/${desktop_id}.metainfo.xml.in
  ${PROJECT_BINARY_DIR}/${desktop_id}.metainfo.xml @ONLY)

install(TARGETS pursewell RUNTIME)
install(FILES ${PROJECT_BINARY_DIR}/pursewell.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${packaging}/${desktop_id}.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PROJECT_BINARY_DIR}/${desktop_id}.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${packaging}/copyright ${PROJECT_BINARY_DIR}/changelog.gz
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/pursewell)

set(icons ${PROJECT_SOURCE_DIR}/resources/icons)
foreach(size IN ITEMS 16x16 22x22 24x24 32x32 48x48 64x64 128x128 256x256)
  install(FILES ${icons}/hicolor/${size}.png RENAME ${desktop_id}.png
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}/apps)
endforeach()
install(FILES ${icons}/app_icon.png RENAME ${desktop_id}.png
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/512x512/apps)
install(FILES ${icons}/app_icon.svg RENAME ${desktop_id}.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME pursewell)
set(CPACK_PACKAGE_VENDOR Kestrelwood)
set(CPACK_PACKAGE_CONTACT "Kestrelwood <packages@kestrelwood.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "check register for the household")
set(CPACK_PACKAGE_DESCRIPTION
"Any number of accounts, a grid that is filled without leaving the keyboard,
split and recurring transactions, transfers, reconciliation against bank
statements, reports, import of QIF and CSV, backups. Everything lies in one
file on this computer; who signs in has it on several devices.")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://www.kestrelwood.example/pursewell/")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What no linker sees: the driver of the database, and Qt's own texts in the languages.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6sql6-sqlite, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "gnome-keyring, fonts-noto-cjk | fonts-ipafont-gothic")
include(CPack)
