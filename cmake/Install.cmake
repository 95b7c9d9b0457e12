# The program stands in a folder of its own with its data beside it: orvantine, Data/Contacts.mdb, Resource/Images.
if(TARGET orvantine)
    install(TARGETS orvantine RUNTIME DESTINATION .)
endif()

install(FILES ${ORVANTINE_IMAGES} DESTINATION Resource/Images)
install(FILES packaging/org.orvantine.Orvantine.metainfo.xml DESTINATION share/metainfo)
install(FILES resources/icons/orvantine.svg DESTINATION share/icons/hicolor/scalable/apps)

# The menu entry names the program by its full path: the folder is on nobody's search path.
install(CODE "set(source \"${PROJECT_SOURCE_DIR}/packaging/orvantine.desktop\")")
install(CODE [[
    file(READ "${source}" entry)
    string(REPLACE "Exec=orvantine" "Exec=\"${CMAKE_INSTALL_PREFIX}/orvantine\"" entry "${entry}")
    string(REPLACE "Icon=orvantine" "Icon=${CMAKE_INSTALL_PREFIX}/share/icons/hicolor/scalable/apps/orvantine.svg" entry "${entry}")
    file(WRITE "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/share/applications/orvantine.desktop" "${entry}")
]])

# The database goes in only where there is none. It is copied beside its place and then named, which never replaces a
# file: not even one that another process makes at the same moment.
install(CODE "set(delivered \"${ORVANTINE_DATABASE}\")")
install(CODE [[
    set(data "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/Data")
    if(EXISTS "${data}/Contacts.mdb")
        message(STATUS "Kept: ${data}/Contacts.mdb")
    else()
        if(NOT EXISTS "${data}")
            file(MAKE_DIRECTORY "${data}")
            file(CHMOD "${data}" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
        endif()
        string(RANDOM LENGTH 8 name)
        file(COPY "${delivered}" DESTINATION "${data}/.${name}" FILE_PERMISSIONS OWNER_READ OWNER_WRITE)
        get_filename_component(file "${delivered}" NAME)
        file(RENAME "${data}/.${name}/${file}" "${data}/Contacts.mdb" NO_REPLACE RESULT result)
        file(REMOVE_RECURSE "${data}/.${name}")
        if(NOT result STREQUAL "0" AND NOT result STREQUAL "NO_REPLACE")
            message(FATAL_ERROR "Cannot make ${data}/Contacts.mdb: ${result}")
        endif()
        message(STATUS "Installing: ${data}/Contacts.mdb")
    endif()
]])
