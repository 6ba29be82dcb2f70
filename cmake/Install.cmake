# What `cmake --install` puts where, and the Debian package made from it.
# The programs go to bin, the sample rulebase to share/quorinadmin, where DataLocation looks
# for it (the icons, help and tips are compiled into the program).

# Installing and packing take what the build folder holds and never build: the package test
# runs in the middle of the test suite. Build first, then install.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)

if(QUORIN_BUILD_GUI)
  install(TARGETS QuorinAdmin RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
install(TARGETS qrbtool RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${QUORIN_DATA_DIR}/Sample.qrb DESTINATION ${QUORIN_INSTALL_DATADIR})

# The desktop's pieces: menu entry, icon theme, file type, manual page, shell completion.
if(UNIX AND NOT APPLE)
  set(desktop_dir ${QUORIN_DATA_DIR}/desktop)

  if(QUORIN_BUILD_GUI)
    install(FILES ${desktop_dir}/quorinadmin.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
    install(FILES ${desktop_dir}/quorinadmin.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
    set(icon_theme ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
    install(FILES ${desktop_dir}/quorinadmin.svg DESTINATION ${icon_theme}/scalable/apps)
    foreach(size 16 22 24 32 48 64 128 256)
      install(FILES ${desktop_dir}/quorinadmin-${size}.png
        DESTINATION ${icon_theme}/${size}x${size}/apps RENAME quorinadmin.png)
    endforeach()
  endif()

  # The manual page is written from qrbtool's own help, so it says what the program does.
  set(qrbtool_man ${CMAKE_CURRENT_BINARY_DIR}/qrbtool.1)
  add_custom_command(OUTPUT ${qrbtool_man}
    COMMAND ${CMAKE_COMMAND} -DQRBTOOL=$<TARGET_FILE:qrbtool> -DOUTPUT=${qrbtool_man}
            -P ${CMAKE_SOURCE_DIR}/cmake/ManPage.cmake
    DEPENDS qrbtool ${CMAKE_SOURCE_DIR}/cmake/ManPage.cmake
    COMMENT "Writing the qrbtool manual page"
    VERBATIM)
  add_custom_target(qrbtool_man ALL DEPENDS ${qrbtool_man})
  install(FILES ${qrbtool_man} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${desktop_dir}/qrbtool.bash-completion
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME qrbtool)

  set(CPACK_GENERATOR DEB)
  set(CPACK_PACKAGE_NAME quorinadmin)
  set(CPACK_PACKAGE_VENDOR "Tarnwick")
  set(CPACK_PACKAGE_CONTACT "Tarnwick Quorin team <quorin@tarnwick.example>")
  set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Administrator's tool of the Quorin code reviewer for Visual Basic 6")
  set(CPACK_PACKAGE_DESCRIPTION "QuorinAdmin edits the rulebases (.qrb) of the Quorin code \
reviewer: naming and coding conventions, unauthorised keywords, authorised components and \
references, categories and severities. qrbtool checks, compares, upgrades and documents \
rulebases without a display.")
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_SECTION devel)
  set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://quorin.tarnwick.example/")
  # The libraries the programs link come from dpkg-shlibdeps, with the names of the system the
  # package is built on; Qt's plugins are loaded at run time, so it can't see those.
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  if(QUORIN_BUILD_GUI)
    set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, libqt6svg6")
  endif()
  include(CPack)
endif()
