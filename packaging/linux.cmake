install(PROGRAMS start.sh menu.sh DESTINATION ${FOLDER})
install(FILES ${PROJECT_SOURCE_DIR}/src/qt/zasoby/ikona128.png DESTINATION ${FOLDER} RENAME planszownik.png)
install(FILES ${PROJECT_SOURCE_DIR}/data/PLIKI/DP3.BAT DESTINATION ${FOLDER}/wzorzec/PLIKI)
install(FILES CZYTAJ.txt DESTINATION ${FOLDER})

# The pages.
add_executable(na_html na_html.cpp)
target_link_libraries(na_html PRIVATE Qt6::Gui)
set(STRONY)
foreach(nazwa podrecznik gra formaty)
    set(strona ${CMAKE_CURRENT_BINARY_DIR}/${nazwa}.html)
    add_custom_command(OUTPUT ${strona}
        COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen $<TARGET_FILE:na_html> ${DOCS}/${nazwa}.md ${strona}
        DEPENDS na_html ${DOCS}/${nazwa}.md VERBATIM)
    list(APPEND STRONY ${strona})
endforeach()
add_custom_target(strony ALL DEPENDS ${STRONY})

set(CPACK_GENERATOR TGZ)
set(CPACK_PACKAGE_FILE_NAME ${CPACK_PACKAGE_NAME}-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
