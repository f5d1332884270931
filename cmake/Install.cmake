# The installed tree, and packages of it. Everything in it finds the rest relative to
# itself, so that the whole can be moved.
include(CMakePackageConfigHelpers)
set(package ${CMAKE_INSTALL_LIBDIR}/cmake/chartxml)
set(modules ${CMAKE_INSTALL_LIBDIR}/chartxml/modules)
set(made ${CMAKE_BINARY_DIR}/install)

# Libraries and the command

install(TARGETS chartxml chartxml_fortran EXPORT chartxml-targets)
install(EXPORT chartxml-targets NAMESPACE chartxml:: DESTINATION ${package})
install(PROGRAMS $<TARGET_FILE:chartxml_command> DESTINATION ${CMAKE_INSTALL_BINDIR})

# Headers: the builder's, and of the host's those that these include or that a program
# calls. Fortran modules for the compiler of this build, and their source for another.

install(DIRECTORY backend/chartxml/include/chartxml DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
  FILES_MATCHING PATTERN *.h PATTERN Role.h EXCLUDE)
set(host_headers ChartBase ChartError ChartSink ChartString ChartTranscoder CodePages Data DataSet
  ErrorLog Export Finding Korva Missing NodeCalls OutputText Settings StringTables ValueColumn
  VarDataProcessor XDocument)
list(TRANSFORM host_headers REPLACE "(.+)" "host/include/host/\\1.h")
install(FILES ${host_headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/host)
get_target_property(module_folder chartxml_fortran Fortran_MODULE_DIRECTORY)
install(DIRECTORY ${module_folder}/ DESTINATION ${modules})
install(DIRECTORY fortran DESTINATION ${CMAKE_INSTALL_DATADIR}/chartxml
  FILES_MATCHING PATTERN *.f90)

# String tables, schema and page runtime, laid out as in the build tree. Node.js is the
# system's: its link in the build tree leads into the checkout.

install(DIRECTORY ${CHARTXML_SHARE} DESTINATION ${CMAKE_INSTALL_DATADIR}
  PATTERN runtime/node EXCLUDE)

# Manual pages and documents

foreach(page chartxml.1 chartxml.7)
  configure_file(man/${page}.in ${made}/${page} @ONLY)
endforeach()
install(FILES ${made}/chartxml.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${made}/chartxml.7 DESTINATION ${CMAKE_INSTALL_MANDIR}/man7)
# What the README links to comes along at the same places.
install(FILES README.md CHANGELOG.md CONTRIBUTING.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY tests/outside/c tests/outside/cpp tests/outside/fortran
  DESTINATION ${CMAKE_INSTALL_DOCDIR}/tests/outside)
install(DIRECTORY docs procedures DESTINATION ${CMAKE_INSTALL_DOCDIR}
  FILES_MATCHING PATTERN *.md PATTERN *.png PATTERN *.f90)

# For CMake and pkg-config

configure_package_config_file(cmake/chartxml-config.cmake.in ${made}/chartxml-config.cmake
  INSTALL_DESTINATION ${package} PATH_VARS CMAKE_INSTALL_DATADIR)
write_basic_package_version_file(${made}/chartxml-config-version.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${made}/chartxml-config.cmake ${made}/chartxml-config-version.cmake
  DESTINATION ${package})
file(RELATIVE_PATH up /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" up ${up})
foreach(library chartxml chartxml-fortran)
  configure_file(cmake/${library}.pc.in ${made}/${library}.pc @ONLY)
  install(FILES ${made}/${library}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()

# Packages: cpack

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "chartxml <chartxml@invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "charts for statistical procedures, with headers and modules")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS 
  "libxerces-c-dev, nodejs, fontconfig, fontconfig-config, fonts-liberation, fonts-dejavu-core, fonts-noto-cjk")
include(CPack)
