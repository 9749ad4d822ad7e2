# Fails when a text of the windows has no translation, in German, or no plural form, in English.
# Called with LUPDATE, the program that collects the texts, and ROOT, the folder of the sources.
cmake_minimum_required(VERSION 3.21)
set(catalogues
  cm/ui|cm/ui/translations/veldra_cm_ui_de.ts|-no-obsolete
  cm/ui|cm/ui/translations/veldra_cm_ui_en.ts|-pluralonly
  host/desktop|host/desktop/translations/desktop_de.ts|-no-obsolete
  host/desktop|host/desktop/translations/desktop_en.ts|-pluralonly)
set(folder ${CMAKE_CURRENT_BINARY_DIR}/translations-test)
file(REMOVE_RECURSE ${folder})
file(MAKE_DIRECTORY ${folder})
foreach(row ${catalogues})
  string(REPLACE "|" ";" row "${row}")
  list(GET row 0 sources)
  list(GET row 1 catalogue)
  list(GET row 2 option)
  get_filename_component(name ${catalogue} NAME)
  file(COPY ${ROOT}/${catalogue} DESTINATION ${folder})
  # The include path lets the program see the headers, without which classes lose their namespaces.
  execute_process(
    COMMAND ${LUPDATE} ${option} -silent -locations none -I ${ROOT} -recursive ${ROOT}/${sources}
      -ts ${folder}/${name}
    RESULT_VARIABLE code ERROR_VARIABLE errors)
  if(NOT code EQUAL 0)
    message(FATAL_ERROR "lupdate failed on ${catalogue}: ${errors}")
  endif()
  file(STRINGS ${folder}/${name} missing REGEX "type=\"unfinished\"|<translation></translation>|<translation/>")
  file(STRINGS ${folder}/${name} known REGEX "<translation")
  list(LENGTH missing count)
  list(LENGTH known all)
  if(all EQUAL 0 OR count GREATER 0)
    file(READ ${folder}/${name} text)
    message(SEND_ERROR "${catalogue}: ${count} of ${all} texts are not translated.")
    string(REGEX MATCHALL "<source>[^<]*</source>[^<]*<translation type=\"unfinished\"" texts "${text}")
    foreach(one ${texts})
      message(STATUS "${one}")
    endforeach()
  endif()
endforeach()
