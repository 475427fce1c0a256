# `cpack -G DEB` in a release build makes the package.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zeltrona)
set(CPACK_PACKAGE_VENDOR "The Zeltrona developers")
set(CPACK_PACKAGE_CONTACT "The Zeltrona developers <maintainers@zeltrona.example>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/package)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_RESOURCE_FILE_LICENSE ${CMAKE_SOURCE_DIR}/LICENSE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://www.zeltrona.example)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What no library names: the plugin that draws the icons, and the font with the widths of Arial.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6, fonts-liberation")
# A window font that is no typewriter: where there is only the other font the toolkit takes its monospaced face.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, qt6-wayland, shared-mime-info")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "play board for basketball coaches")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Zeltrona draws basketball plays. A play is a numbered row of frames on a
court: two teams, balls, movement lines, shades, texts, and runs recorded
free-hand. The board plays it as an animation, in the window or on the full
screen, prints it in two layouts, and exports it as pictures, as a web report
and to the clipboard.

A library of sample plays comes with it, and zpf, a companion program that
checks, draws, reports and prints plays without a window.")
include(CPack)
