# The Debian packages that `./package` makes: the program, and the exporter.
if(LURKWELL_PACKAGED)
  install(FILES copyright DESTINATION share/doc/lurkwell)
  install_gzipped(changelog changelog.Debian share/doc/lurkwell)
  install(FILES lintian-overrides DESTINATION share/lintian/overrides RENAME lurkwell)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME lurkwell)
set(CPACK_PACKAGE_VENDOR "The Lurkwell developers")
# Whoever builds is the one to ask; without a word from him an address that can be nobody's.
set(LURKWELL_BUILDER "The Lurkwell developers <lurkwell@lurkwell.invalid>")
if(DEFINED ENV{DEBEMAIL} AND DEFINED ENV{DEBFULLNAME})
  set(LURKWELL_BUILDER "$ENV{DEBFULLNAME} <$ENV{DEBEMAIL}>")
endif()
set(CPACK_PACKAGE_CONTACT "${LURKWELL_BUILDER}")
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_COMPONENTS_ALL lurkwell)
set(CPACK_DEBIAN_LURKWELL_PACKAGE_NAME lurkwell)
set(CPACK_DEBIAN_LURKWELL_DESCRIPTION
"interactive process monitor with an animated view
Lurkwell shows every process of the machine in several views at once: a table
with its properties and the columns of ps, windows that follow one process
with a history or a log, and an animated view in a window or over the whole
screen.
.
Processes can be quit, killed, halted, continued and given another priority.
For those of other users a small confined helper asks for an administrator's
consent once; without it the program works with the user's own rights.")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_OUTPUT_FILE_PREFIX ${CMAKE_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
  GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# ps and kill, while renice is essential; what reads SVG pictures, which early packages of the library had.
set(CPACK_DEBIAN_LURKWELL_PACKAGE_DEPENDS "procps, qt6-svg-plugins | libqt6svg6 (<< 6.6)")
set(CPACK_DEBIAN_LURKWELL_PACKAGE_RECOMMENDS "pkexec, qt6-translations-l10n, qt6-wayland")
lurkwell_maintainer_scripts(${CMAKE_INSTALL_PREFIX} ${CMAKE_CURRENT_BINARY_DIR}/package)
set(CPACK_DEBIAN_LURKWELL_PACKAGE_SUGGESTS "lurkwell-export")
set(CPACK_DEBIAN_LURKWELL_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_BINARY_DIR}/package/preinst
  ${CMAKE_CURRENT_BINARY_DIR}/package/postrm)
if(TARGET lurkwell-export)
  list(APPEND CPACK_COMPONENTS_ALL exporter)
  set(CPACK_DEBIAN_EXPORTER_PACKAGE_NAME lurkwell-export)
  set(CPACK_DEBIAN_EXPORTER_PACKAGE_SECTION net)
  set(CPACK_DEBIAN_EXPORTER_PACKAGE_DEPENDS "init-system-helpers (>= 1.54)")
  set(CPACK_DEBIAN_EXPORTER_PACKAGE_SUGGESTS "prometheus")
  set(CPACK_DEBIAN_EXPORTER_DESCRIPTION
"Prometheus exporter of processes, by program, unit, container and user
lurkwell-export serves what groups of processes use of processors, memory,
disks and network, what they do, and the figures of the machine, in
Prometheus's text format and in OpenMetrics.
.
It runs as a user of its own without any right, reads when it is asked and
does nothing in between. Rules for alerts and a dashboard for Grafana come
with it.")
  set(CPACK_DEBIAN_EXPORTER_PACKAGE_CONTROL_EXTRA ${EXPORT}/postinst ${EXPORT}/prerm ${EXPORT}/postrm
    ${EXPORT}/conffiles)
endif()
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION TRUE)
include(CPack)
