install(PROGRAMS start.sh menu.sh DESTINATION ${FOLDER})
install(FILES ${PROJECT_SOURCE_DIR}/src/qt/zasoby/ikona128.png DESTINATION ${FOLDER} RENAME planszownik.png)
install(FILES ${PROJECT_SOURCE_DIR}/data/PLIKI/DP3.BAT DESTINATION ${FOLDER}/wzorzec/PLIKI)
install(FILES CZYTAJ.txt DESTINATION ${FOLDER})

# The documents as pages for a browser.
add_executable(to_html to_html.cpp)
target_link_libraries(to_html PRIVATE Qt6::Gui)
set(PAGES)
foreach(name podrecznik gra formaty)
    set(page ${CMAKE_CURRENT_BINARY_DIR}/${name}.html)
    add_custom_command(OUTPUT ${page}
        COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen $<TARGET_FILE:to_html> ${DOCS}/${name}.md ${page}
        DEPENDS to_html ${DOCS}/${name}.md VERBATIM)
    list(APPEND PAGES ${page})
endforeach()
add_custom_target(pages ALL DEPENDS ${PAGES})

set(CPACK_GENERATOR TGZ)
set(CPACK_PACKAGE_FILE_NAME ${CPACK_PACKAGE_NAME}-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
