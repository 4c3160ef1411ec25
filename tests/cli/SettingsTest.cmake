# klangkartei-cli settings: lesen, setzen, zurücksetzen, in einem eigenen XDG_CONFIG_HOME.
file(REMOVE_RECURSE "${ORDNER}")
file(MAKE_DIRECTORY "${ORDNER}/konfig" "${ORDNER}/daten" "${ORDNER}/bin")
set(UMGEBUNG XDG_CONFIG_HOME=${ORDNER}/konfig XDG_DATA_HOME=${ORDNER}/daten XDG_DATA_DIRS=${ORDNER}/daten
             PATH=${ORDNER}/bin)

# Ruft settings mit ARGN auf; prüft Rückgabe und dass die Ausgabe (stdout, dann stderr) dem Muster folgt.
function(settings erwartet_rc muster)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env ${UMGEBUNG} ${CLI} settings ${ARGN}
                  RESULT_VARIABLE rc OUTPUT_VARIABLE aus ERROR_VARIABLE fehler)
  if(NOT rc EQUAL ${erwartet_rc})
    message(FATAL_ERROR "settings ${ARGN}: Rückgabe ${rc} statt ${erwartet_rc}\n${aus}${fehler}")
  endif()
  if(NOT "${aus}${fehler}" MATCHES "${muster}")
    message(FATAL_ERROR "settings ${ARGN}: '${muster}' passt nicht auf:\n${aus}${fehler}")
  endif()
  set(AUSGABE "${aus}" PARENT_SCOPE)
endfunction()

set(KONF "${ORDNER}/konfig/klangkartei/klangkartei.conf")

# Frisch: Vorgaben, und Lesen schreibt nichts.
settings(0 "^Mp3TagLesen=101\n$" get Mp3TagLesen)
if(EXISTS "${KONF}")
  message(FATAL_ERROR "settings get hat die Einstellungsdatei angelegt")
endif()

# Setzen, wieder lesen, in der Datei als Text.
settings(0 "^$" set Mp3TagLesen 111)
settings(0 "^Mp3TagLesen=111\n$" get Mp3TagLesen)
settings(0 "^WinampLautstärke=128\n$" get winamplautstärke)
file(READ "${KONF}" inhalt)
if(NOT inhalt MATCHES "\nMp3TagLesen=t:111\n" OR NOT inhalt MATCHES "\nStart=z:0\n")
  message(FATAL_ERROR "Einstellungsdatei unerwartet:\n${inhalt}")
endif()

# Zahlen: ganz und im Bereich ihrer Art.
settings(1 "Die Einstellung 'FensterMax' wurde nicht geändert. Der Wert 'abc' ist keine ganze Zahl zwischen -32768 und 32767\\." set FensterMax abc)
settings(1 "keine ganze Zahl" set FensterMax 40000)
settings(0 "^$" set FensterWidth 40000)
settings(0 "^FensterWidth=40000\n$" get FensterWidth)
settings(1 "^Unbekannte Einstellung 'Gibtsnicht'\\.\n$" get Gibtsnicht)
settings(1 "^Unbekannte Einstellung 'Gibtsnicht'\\.\n$" set Gibtsnicht 1)

# Texte mit Rückstrich werden maskiert ausgegeben.
settings(0 "^$" set KopierenOrdner "a\\b")
settings(0 "^KopierenOrdner=a\\\\x5Cb\n$" get KopierenOrdner)

# Alle Werte: 74 der Tabelle, die Formate gleich hinter ihrem Zustand, die leere Ausschlussliste nicht.
settings(0 "^Dateiname=\nMp3TagLesen=111\nWinampPfad=\n" )
string(REGEX MATCHALL "\n" zeilen "${AUSGABE}")
list(LENGTH zeilen anzahl)
if(NOT anzahl EQUAL 97)
  message(FATAL_ERROR "settings: ${anzahl} Zeilen statt 97:\n${AUSGABE}")
endif()
foreach(folge "\nAutoTagLeer=0\nAutoTagFormate1=/%Interpret% - %Titel%\n"
              "\nAutoTagFormate23=%Automatik%\nKopierenOrdner=a\\x5Cb\n"
              "\nAutoTagAusschlußLeer=1\nNichtVerfügbarFragen=1\n")
  string(FIND "${AUSGABE}" "${folge}" stelle)
  if(stelle EQUAL -1)
    message(FATAL_ERROR "settings: Folge fehlt: ${folge}\n${AUSGABE}")
  endif()
endforeach()
if(NOT AUSGABE MATCHES "\nTAGsSoftwareFeldSchreiben=1\n$")
  message(FATAL_ERROR "settings: letzte Zeile falsch:\n${AUSGABE}")
endif()

# Listeneinträge: ersetzen, anhängen, nicht hinter das Ende springen.
settings(0 "^$" set AutoTagFormate24 "/%Album%/%Titel%")
settings(0 "^AutoTagFormate24=/%Album%/%Titel%\n$" get AutoTagFormate24)
settings(1 "hat 24 Einträge; setzen lässt sich nur Nummer 1 bis 25" set AutoTagFormate26 x)
settings(1 "Die Liste 'AutoTagAusschluß' hat keinen Eintrag 1\\." get AutoTagAusschluß1)
settings(0 "^$" set AutoTagAusschluß1 live)
settings(0 "^AutoTagAusschlußLeer=0\n$" get AutoTagAusschlußLeer)

# Zurücksetzen: Vorgaben, überzählige Listeneinträge sind aus der Datei verschwunden.
settings(0 "^$" reset)
settings(0 "^Mp3TagLesen=101\n$" get Mp3TagLesen)
settings(1 "keinen Eintrag 24" get AutoTagFormate24)
file(READ "${KONF}" inhalt)
if(inhalt MATCHES "AutoTagFormate24|AutoTagAusschluß1=|FensterWidth=z:40000")
  message(FATAL_ERROR "Nach reset stehen alte Werte in der Datei:\n${inhalt}")
endif()

# Falscher Aufruf.
settings(2 "settings get braucht genau einen Namen" get)
settings(2 "settings set braucht einen Namen und einen Wert" set Mp3TagLesen)
settings(2 "Unbekannte Aufgabe 'quatsch'" quatsch)
