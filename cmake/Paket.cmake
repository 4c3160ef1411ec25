# Installation und Debian-Paket: Programme, mitgelieferte Daten, Desktop-Eintrag, Symbol,
# MIME-Typ der Indexdatei, AppStream-Beschreibung und Handbuchseiten. `cpack -G DEB` baut das Paket.
include(GNUInstallDirs)
set(KK_PAKET ${PROJECT_SOURCE_DIR}/paket)
set(KK_PAKET_BAU ${CMAKE_BINARY_DIR}/paket)

install(DIRECTORY data/ DESTINATION ${CMAKE_INSTALL_DATADIR}/klangkartei)
install(FILES ${KK_PAKET}/klangkartei.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${KK_PAKET}/klangkartei.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${KK_PAKET}/klangkartei-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
        RENAME klangkartei.xml)
install(DIRECTORY ${KK_PAKET}/icons/hicolor DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)

# Handbuchseiten und Änderungsliste gepackt, wie Debian sie erwartet (gzip -n: ohne Zeitstempel).
set(KK_GEPACKT)
foreach(datei klangkartei.1 klangkartei-cli.1 changelog)
  add_custom_command(OUTPUT ${KK_PAKET_BAU}/${datei}.gz
    COMMAND ${CMAKE_COMMAND} -E make_directory ${KK_PAKET_BAU}
    COMMAND gzip -9nc ${KK_PAKET}/${datei} > ${KK_PAKET_BAU}/${datei}.gz
    DEPENDS ${KK_PAKET}/${datei} VERBATIM)
  list(APPEND KK_GEPACKT ${KK_PAKET_BAU}/${datei}.gz)
endforeach()
add_custom_target(kk_paketdateien ALL DEPENDS ${KK_GEPACKT})
install(FILES ${KK_PAKET_BAU}/klangkartei.1.gz ${KK_PAKET_BAU}/klangkartei-cli.1.gz
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${KK_PAKET}/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/klangkartei)
install(FILES ${KK_PAKET_BAU}/changelog.gz DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/klangkartei RENAME changelog.Debian.gz)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME klangkartei)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_CONTACT "Die Klangkartei-Entwickler <klangkartei@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Kartei über Musik- und Mediendateien")
set(CPACK_PACKAGE_DESCRIPTION "KlangKartei führt eine Kartei über Musik- und Mediendateien auf Festplatten,
Netzlaufwerken und Wechselmedien: suchen beim Tippen, abspielen über einen
MPRIS-fähigen Player, ID3-Tags bearbeiten, umbenennen, exportieren.
Dazu die Kommandozeile klangkartei-cli für Skripte.")
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_STRIP_FILES ON)
# Bibliotheken ermittelt dpkg-shlibdeps aus den Programmen; dazu, was nur zur Laufzeit gebraucht wird.
find_program(KK_DPKG_SHLIBDEPS dpkg-shlibdeps)
if(KK_DPKG_SHLIBDEPS)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "xdg-utils")
else()
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "libc6 (>= 2.34), libstdc++6 (>= 12), libgcc-s1 (>= 3.0), libqt6core6 (>= 6.4.2), libqt6gui6 (>= 6.4.2), libqt6widgets6 (>= 6.4.2), libqt6dbus6 (>= 6.4.2), libutf8proc2 (>= 2.5), xdg-utils")
endif()
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "audacious, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-wayland")
include(CPack)
