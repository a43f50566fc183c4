# What the exporter's package holds; included beside what the program's holds.
set(EXPORT ${CMAKE_CURRENT_LIST_DIR})
if(LURKWELL_PACKAGED AND CMAKE_INSTALL_PREFIX STREQUAL /usr)
  set(CONFIGURATION_FOLDER /etc/lurkwell)
  set(LURKWELL_EXPORT_CONFIGURATION /etc/lurkwell/export.conf)
else()
  set(CONFIGURATION_FOLDER etc/lurkwell)
  set(LURKWELL_EXPORT_CONFIGURATION ${CMAKE_INSTALL_PREFIX}/etc/lurkwell/export.conf)
endif()

install(TARGETS lurkwell-export RUNTIME DESTINATION bin COMPONENT exporter)
install(FILES ${EXPORT}/export.conf DESTINATION ${CONFIGURATION_FOLDER} COMPONENT exporter)
configure_file(${EXPORT}/lurkwell-export.service.in lurkwell-export.service @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/lurkwell-export.service
  DESTINATION lib/systemd/system COMPONENT exporter)
install(FILES ${EXPORT}/lurkwell.rules.yml ${EXPORT}/lurkwell-dashboard.json ${EXPORT}/scrape.yml
  DESTINATION share/lurkwell-export COMPONENT exporter)
install_gzipped(../export/lurkwell-export.1 lurkwell-export.1 share/man/man1 exporter)

if(LURKWELL_PACKAGED)
  install(FILES copyright DESTINATION share/doc/lurkwell-export COMPONENT exporter)
  install_gzipped(changelog export-changelog.Debian share/doc/lurkwell-export exporter
    changelog.Debian)
  install(FILES ${EXPORT}/lintian-overrides DESTINATION share/lintian/overrides RENAME lurkwell-export
    COMPONENT exporter)
endif()
