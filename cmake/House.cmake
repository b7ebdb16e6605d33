# The house: two libraries. A folder names its sources with these two functions, so that the border between
# what knows a widget and what does not stands in its CMakeLists.txt and is kept by the linker.
function(tafelquell_kern_quellen)
  list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE Quellen)
  target_sources(tafelquell_kern PRIVATE ${Quellen})
endfunction()

function(tafelquell_fenster_quellen)
  list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE Quellen)
  target_sources(tafelquell_fenster PRIVATE ${Quellen})
  tafelquell_formen_beachten(${Quellen})
endfunction()

# A changed form rebuilds what includes its header in the same run. Ninja looks at the headers before uic has written
# them, and would notice the change only in the next run.
function(tafelquell_formen_beachten)
  foreach(Quelle ${ARGN})
    if(Quelle MATCHES "\\.cpp$")
      file(STRINGS ${Quelle} Formen REGEX "^#include \"ui_.*\\.h\"")
      list(TRANSFORM Formen REPLACE "^#include \"ui_(.*)\\.h\"" "${CMAKE_CURRENT_SOURCE_DIR}/\\1.ui")
      set_source_files_properties(${Quelle} TARGET_DIRECTORY tafelquell_fenster PROPERTIES OBJECT_DEPENDS "${Formen}")
    endif()
  endforeach()
endfunction()

# One test program for a folder of the house: all its tst_*.cpp and the common main.
function(tafelquell_testprogramm Ordner Bibliothek)
  file(GLOB Quellen CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  if(NOT Quellen)
    return()
  endif()
  set(Name tafelquell_tests_${Ordner})
  tafelquell_moc_neu(${Name} ${Quellen})
  add_executable(${Name} ${Quellen})
  target_link_libraries(${Name} PRIVATE ${Bibliothek} tafelquell_strenge Qt6::Test)
  target_compile_definitions(${Name} PRIVATE TESTDATEN="${PROJECT_SOURCE_DIR}/tests/data"
    LIEFERDATEN="${PROJECT_SOURCE_DIR}/data")
  add_test(NAME ${Ordner} COMMAND ${Name})
  set_tests_properties(${Ordner} PROPERTIES TIMEOUT 600
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QTEST_DISABLE_STACK_DUMP=1;LC_ALL=de_DE.UTF-8;UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1")
endfunction()

# moc and uic look again by themselves only when a file they know changes, not when one is new: takes the stamp of a
# target away if one of the files is newer than it.
function(tafelquell_moc_neu Ziel)
  set(Stempel ${CMAKE_CURRENT_BINARY_DIR}/${Ziel}_autogen/timestamp)
  foreach(Datei ${ARGN})
    if(${Datei} IS_NEWER_THAN ${Stempel})
      file(REMOVE ${Stempel})
    endif()
  endforeach()
endfunction()
