# What `cmake --install` puts into one folder, /opt/kestrelix unless told otherwise, and the .deb of the same (cpack).

set(KESTRELIX_FOLDER /opt/kestrelix)
if(CMAKE_INSTALL_PREFIX_INITIALIZED_TO_DEFAULT)
  set_property(CACHE CMAKE_INSTALL_PREFIX PROPERTY VALUE ${KESTRELIX_FOLDER})
endif()

set(programs kestrelix-report kestrelix-repository)
if(KESTRELIX_GUI)
  list(APPEND programs kestrelix)
endif()
install(TARGETS ${programs} RUNTIME DESTINATION .)
install(FILES ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Kestrelix.chm LICENSE packaging/desktop/kestrelix.svg
  packaging/desktop/kestrelix.png DESTINATION .)
# The menu entry names the folder. Anywhere else the program is started by hand.
install(CODE "
  if(CMAKE_INSTALL_PREFIX STREQUAL \"${KESTRELIX_FOLDER}\")
    file(INSTALL \"${CMAKE_SOURCE_DIR}/packaging/desktop/kestrelix.desktop\" DESTINATION /usr/share/applications)
  endif()")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kestrelix)
set(CPACK_PACKAGE_CONTACT "The Kestrelix developers <kestrelix@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "viewer for the STATSPACK repository of an Oracle database")
set(CPACK_PACKAGE_DESCRIPTION
  "Pick an instance and a pair of snapshots, and read the report on that interval Section by Section; follow a row
through all intervals, as a list or a chart. Repositories of Oracle 9, 10 and 11 on a server or in a local file.")
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX ${KESTRELIX_FOLDER})
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION database)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-ipafont-gothic, qt6-wayland, unixodbc")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_SOURCE_DIR}/packaging/desktop/postrm)
include(CPack)
