# Where the parts go when they are installed, and the Debian package. tools/paquete calls both.
include(GNUInstallDirs)

set(CPACK_PACKAGE_NAME esclavo-modbus)
# Who answers for a package: whoever builds it, as Debian's own tools take it from the environment. The authors have no
# public address; the one that stands for it belongs to nobody (RFC 2606).
if(NOT "$ENV{DEBEMAIL}" STREQUAL "")
  set(contact "$ENV{DEBFULLNAME} <$ENV{DEBEMAIL}>")
else()
  set(contact "Los autores de Esclavo Modbus <esclavo-modbus@example.org>")
endif()
set(CPACK_PACKAGE_CONTACT "${contact}")
string(TIMESTAMP FECHA_ISO "%Y-%m-%d" UTC)
string(TIMESTAMP FECHA_RFC "%a, %d %b %Y %H:%M:%S +0000" UTC)

set(generated ${CMAKE_BINARY_DIR}/packaging)
set(doc_folder ${CMAKE_INSTALL_DATADIR}/doc/esclavo-modbus)

# esclavo_gzip(INPUT OUTPUT): a compressed copy that bears no name and no time, made when the project is configured.
function(esclavo_gzip input output)
  execute_process(COMMAND gzip -9nc ${input} OUTPUT_FILE ${output} COMMAND_ERROR_IS_FATAL ANY)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${input})
endfunction()

# The program has a folder of its own: there, and not among everybody's programs, a station of root keeps its settings.
install(TARGETS esclavo-modbus RUNTIME DESTINATION lib/esclavo-modbus)
file(MAKE_DIRECTORY ${generated})
file(CREATE_LINK ../lib/esclavo-modbus/esclavo-modbus ${generated}/esclavo-modbus SYMBOLIC)
install(FILES ${generated}/esclavo-modbus DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS esclavo-script RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

# The desktop.
install(FILES packaging/esclavo-modbus.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/esclavo-modbus.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(side 16 32 64 256)
  install(FILES src/shell/recursos/icono-${side}.png RENAME esclavo-modbus.png
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${side}x${side}/apps)
endforeach()
set(metainfo org.example.EsclavoModbus.metainfo.xml)
configure_file(packaging/${metainfo}.in ${generated}/${metainfo} @ONLY)
install(FILES ${generated}/${metainfo} DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES packaging/esclavo-modbus.service DESTINATION lib/systemd/user)

# Man pages: Spanish, and found by readers of any language.
foreach(page esclavo-modbus.1 esclavo-script.1)
  configure_file(packaging/${page} ${generated}/${page} @ONLY)
  esclavo_gzip(${generated}/${page} ${generated}/${page}.gz)
  install(FILES ${generated}/${page}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/es/man1)
  file(MAKE_DIRECTORY ${generated}/man1)
  file(CREATE_LINK ../es/man1/${page}.gz ${generated}/man1/${page}.gz SYMBOLIC)
  install(FILES ${generated}/man1/${page}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()

# The manual and the samples. The pages point to ../ejemplos; Debian looks for examples.
configure_file(packaging/changelog.in ${generated}/changelog @ONLY)
esclavo_gzip(${generated}/changelog ${generated}/changelog.gz)
install(FILES packaging/copyright ${generated}/changelog.gz README.md DESTINATION ${doc_folder})
install(DIRECTORY docs DESTINATION ${doc_folder}
  FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "*.html" PATTERN figures.md EXCLUDE)
install(DIRECTORY ejemplos/ DESTINATION ${doc_folder}/examples)
file(CREATE_LINK examples ${generated}/ejemplos SYMBOLIC)
install(FILES ${generated}/ejemplos DESTINATION ${doc_folder})

# The portable archive: everything in one folder, where the station keeps its settings too.
install(TARGETS esclavo-modbus esclavo-script RUNTIME DESTINATION . COMPONENT portatil EXCLUDE_FROM_ALL)
install(FILES packaging/LEEME.txt packaging/copyright DESTINATION . COMPONENT portatil EXCLUDE_FROM_ALL)
install(DIRECTORY docs DESTINATION . COMPONENT portatil EXCLUDE_FROM_ALL
  FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "*.html" PATTERN figures.md EXCLUDE)
install(DIRECTORY ejemplos DESTINATION . COMPONENT portatil EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_SOURCE_DIR}/build)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL Unspecified)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "estación esclava Modbus TCP de escritorio")
set(CPACK_PACKAGE_DESCRIPTION
"Sirve registros Modbus TCP a cualquier número de maestros, crea esclavos y
registros según se piden y muestra cada registro, trama y escritura: para
probar un SCADA, un panel o un programa de autómata que los consulte.
.
Ejecuta scripts en VBScript contra los registros, lee tramas de texto de un
puerto serie y hace de puente entre dos clientes TCP.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libcap2-bin, fonts-dejavu-core")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_SOURCE_DIR}/packaging/postinst ${CMAKE_SOURCE_DIR}/packaging/postrm)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
