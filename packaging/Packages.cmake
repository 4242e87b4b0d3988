# Two Debian packages: cmake --build build --target package. Included once everything is known that
# is installed; the component of a rule names its package.

# There are no scripts of ours: caches of icons, MIME types and desktop entries are renewed by the
# packages that own them.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kestrel-icon-editor)
set(CPACK_PACKAGE_VENDOR "KestrelIconEditor developers")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL kestrel-icon-editor kestrel-icon)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://brinmoor.example/KestrelIconEditor")
set(CPACK_DEBIAN_PACKAGE_MAINTAINER
  "KestrelIconEditor developers <kestrel-icon-editor@brinmoor.example>")
# Debian wants what people read compressed.
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/compress.cmake)

# The name of a component's variables is in capitals.
set(CPACK_COMPONENT_KESTREL-ICON-EDITOR_DESCRIPTION
  "desktop editor for icons of 32 x 32 pixels
Draws icons pixel by pixel on a grid ten times their size, beside a preview
in actual size: eleven tools, 40 filters, a palette of 256 colours, undo
without a limit. Opens icon and cursor files of any depth, takes icons out of
programs and libraries, and captures them from the screen.")
set(CPACK_DEBIAN_KESTREL-ICON-EDITOR_PACKAGE_NAME kestrel-icon-editor)
# Thumbnails in file managers, the library's dialogs in Chinese, and what opens the home page.
set(CPACK_DEBIAN_KESTREL-ICON-EDITOR_PACKAGE_RECOMMENDS
  "kestrel-icon, qt6-translations-l10n, xdg-utils")
set(CPACK_DEBIAN_KESTREL-ICON-EDITOR_PACKAGE_SUGGESTS "fonts-noto-cjk, qt6-wayland")

set(CPACK_COMPONENT_KESTREL-ICON_DESCRIPTION
  "icon files from the shell: list, extract, convert, filter
Lists the icons and images of icon, cursor, program, library and animated
cursor files, takes them out, converts between icons and PNG, runs the
commands of KestrelIconEditor by their names, and writes thumbnails for file
managers.")
set(CPACK_DEBIAN_KESTREL-ICON_PACKAGE_NAME kestrel-icon)

# Debian's documents of each package.
set(packaging_dir ${CMAKE_CURRENT_BINARY_DIR}/packaging)
configure_file(${CMAKE_CURRENT_LIST_DIR}/changelog.in ${packaging_dir}/changelog @ONLY)
foreach(package ${CPACK_COMPONENTS_ALL})
  install(FILES ${packaging_dir}/changelog ${CMAKE_CURRENT_LIST_DIR}/copyright
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${package})
endforeach()
install(FILES ${CMAKE_CURRENT_LIST_DIR}/kestrel-icon.lintian
  DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME kestrel-icon
  COMPONENT kestrel-icon)

include(CPack)
