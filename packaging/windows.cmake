# The libraries that come with the program, and their licences.
install(FILES $<TARGET_FILE:Qt6::Core> $<TARGET_FILE:Qt6::Gui> $<TARGET_FILE:Qt6::Widgets> DESTINATION ${FOLDER})
install(FILES ${QT_WINDOWS}/plugins/platforms/qwindows.dll DESTINATION ${FOLDER}/platforms)
install(FILES qt.conf DESTINATION ${FOLDER})
foreach(library libgcc_s_seh-1 libstdc++-6 libwinpthread-1) # the compiler's own
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}.dll
        OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE)
    execute_process(COMMAND ${CMAKE_STRIP} -o ${CMAKE_CURRENT_BINARY_DIR}/${library}.dll ${file}
        COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${library}.dll DESTINATION ${FOLDER})
endforeach()

configure_file(DP3-windows.BAT DP3.BAT @ONLY NEWLINE_STYLE CRLF)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/DP3.BAT DESTINATION ${FOLDER}/wzorzec/PLIKI)
configure_file(CZYTAJ-windows.txt CZYTAJ.txt @ONLY NEWLINE_STYLE CRLF)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/CZYTAJ.txt DESTINATION ${FOLDER})
install(FILES ${QT_WINDOWS}/licences/LGPL-3.0-only.txt ${QT_WINDOWS}/licences/GPL-3.0-only.txt
    DESTINATION ${FOLDER}/licencje)
install(FILES ${QT_WINDOWS}/licences/copyright DESTINATION ${FOLDER}/licencje RENAME Qt.txt)
install(FILES /usr/share/doc/gcc-mingw-w64-base/copyright DESTINATION ${FOLDER}/licencje RENAME GCC.txt)
install(FILES /usr/share/doc/mingw-w64-common/copyright DESTINATION ${FOLDER}/licencje RENAME mingw-w64.txt)

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME ${CPACK_PACKAGE_NAME}-${PROJECT_VERSION}-windows-x64)
