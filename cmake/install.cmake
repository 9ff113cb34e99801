# `cmake --install`: the program keeps its data, engines and language files beside itself, so it
# goes whole into <prefix>/lib/quintarena with a link in <prefix>/bin; a desktop entry and an icon
# go where the desktop looks for them. An installed copy that cannot write its folder keeps its
# settings and ranking in the user's data folder.
set(QA_CARPETA_INSTALADA lib/quintarena)
install(TARGETS quintarena quintarena-cli RUNTIME DESTINATION ${QA_CARPETA_INSTALADA})
install(TARGETS quintarena-cli-bucle LIBRARY DESTINATION ${QA_CARPETA_INSTALADA})
install(DIRECTORY ${CMAKE_SOURCE_DIR}/data/ DESTINATION ${QA_CARPETA_INSTALADA}
        PATTERN CMakeLists.txt EXCLUDE)
install(CODE "
  set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin\")
  file(MAKE_DIRECTORY \"\${bin}\")
  foreach(p quintarena quintarena-cli)
    file(CREATE_LINK ../${QA_CARPETA_INSTALADA}/\${p} \"\${bin}/\${p}\" SYMBOLIC)
  endforeach()
")
install(FILES ${CMAKE_SOURCE_DIR}/desktop/quintarena.desktop DESTINATION share/applications)
install(FILES ${CMAKE_SOURCE_DIR}/board/pieces/caballob.svg
        DESTINATION share/icons/hicolor/scalable/apps RENAME quintarena.svg)
install(CODE "
  execute_process(COMMAND bash ${CMAKE_SOURCE_DIR}/tools/make-engines.sh
                  \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${QA_CARPETA_INSTALADA}\")
")
