# What `cmake --install` puts in place, and the Debian package CPack makes of it.
#   <prefix>/bin/sonarium
#   <prefix>/share/sonarium/{help,skins,zipdeck}/...  and the outside-encoder adapter Bladeenc
#   <prefix>/share/applications/sonarium.desktop, share/metainfo/, share/icons/hicolor/
install(TARGETS sonarium RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY assets/help assets/skins assets/zipdeck DESTINATION ${SONARIUM_DATA_DIR})
install(PROGRAMS tools/bladeenc/Bladeenc DESTINATION ${SONARIUM_DATA_DIR})
install(FILES assets/sonarium.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES assets/org.sonarium.Sonarium.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(DIRECTORY assets/icons/hicolor DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)

set(CPACK_PACKAGE_NAME sonarium)
set(CPACK_PACKAGE_VENDOR "Sonarium")
set(CPACK_PACKAGE_CONTACT "Sonarium developers <sonarium@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "music jukebox: player, song library, CD ripper and MP3 converter")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "${CPACK_PACKAGE_DESCRIPTION_SUMMARY}
 Sonarium plays a queue of MP3 songs with fade-out, per-song treble and bass,
 speed and a VU meter, and wakes you with an alarm. It keeps a song library
 with browsing, filters, search and song sets, converts between audio CD, WAV
 and MP3, shows info pages, photos and karaoke beside the songs, and wears
 bitmap skins, with a small skinned mini player.")
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
# The libraries the program links come from dpkg-shlibdeps; what it loads at run time is named
# here: Qt's platform plugins (its windows), and xdg-open, which opens the help page.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, xdg-utils")
# The outside-encoder adapter runs the lame tool.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "lame")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION TRUE)
include(CPack)
