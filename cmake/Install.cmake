# The library and the program look for their resources in their own directory, so all of that goes
# into a folder of its own, with links to it from where people and linkers look.

if(WIN32 OR NOT TARGET jobticket)
    return()
endif()

set(home ${CMAKE_INSTALL_LIBDIR}/zent27)
install(TARGETS zent27 zent27-qt LIBRARY DESTINATION ${home})
install(TARGETS jobticket RUNTIME DESTINATION ${home})
install(FILES ${ZENT_COMPANIONS} DESTINATION ${home})
install(FILES include/zent27.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

function(zent_install_link target folder name)
    install(CODE "
        set(folder \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${folder}\")
        file(MAKE_DIRECTORY \"\${folder}\")
        file(CREATE_LINK \"${target}\" \"\${folder}/${name}\" SYMBOLIC)
        message(STATUS \"Installing: \${folder}/${name} -> ${target}\")")
endfunction()
foreach(name libzent27.so libzent27.so.${PROJECT_VERSION_MAJOR})
    zent_install_link(zent27/${name} ${CMAKE_INSTALL_LIBDIR} ${name})
endforeach()
zent_install_link(../${home}/jobticket ${CMAKE_INSTALL_BINDIR} jobticket)

configure_file(cmake/zent27.pc.in ${CMAKE_BINARY_DIR}/zent27.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/zent27.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(FILES ${CMAKE_BINARY_DIR}/apps/jobticket/jobticket.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES apps/jobticket/jobticket.bash
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME jobticket)

# The pages lead to each other and to what they speak of, so they stand as they do here.
install(FILES README.md CHANGES.md CONTRIBUTING.md SECURITY.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs examples DESTINATION ${CMAKE_INSTALL_DOCDIR} PATTERN .gitattributes EXCLUDE)
install(FILES include/zent27.h DESTINATION ${CMAKE_INSTALL_DOCDIR}/include)
install(FILES resources/ordo-v02025.dtd DESTINATION ${CMAKE_INSTALL_DOCDIR}/resources)
