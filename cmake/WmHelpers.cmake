# A lean precompiled header for targets that use Qt Widgets.
function(wm_qt_pch target)
  target_precompile_headers(${target} PRIVATE
    <QString> <QWidget> <QPainter> <QTimer> <QLabel> <QPushButton> <vector> <string>)
endfunction()

# Test time limits: a screen program takes a few seconds and a rules program well under one, so a
# test that hangs is stopped long before the five minutes a whole run is allowed.
set(WM_QT_TEST_TIMEOUT 120)
set(WM_GTEST_TIMEOUT 60)

# A QtTest program run offscreen by ctest.
function(wm_qt_test name)
  cmake_parse_arguments(T "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(${name} ${T_SOURCES})
  target_link_libraries(${name} PRIVATE ${T_LIBS} Qt6::Test)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;WM_TEST_APP_DIR=${WM_APP_DIR}" TIMEOUT ${WM_QT_TEST_TIMEOUT})
endfunction()

# A GoogleTest program.
function(wm_gtest name)
  cmake_parse_arguments(T "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(${name} ${T_SOURCES})
  target_link_libraries(${name} PRIVATE ${T_LIBS} GTest::gtest GTest::gtest_main)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT ${WM_GTEST_TIMEOUT})
endfunction()

# Adds a folder when it already has its CMakeLists.txt, so pieces can land one by one.
# WM_SKIP lists folder names to leave out while they are being written.
macro(wm_add_optional dir)
  get_filename_component(_wm_name ${dir} NAME)
  if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${dir}/CMakeLists.txt AND NOT _wm_name IN_LIST WM_SKIP)
    add_subdirectory(${dir})
  endif()
endmacro()

# A game's screen library: on the shell, sharing its precompiled header, and listed for
# wm_games, which links every game screen whole.
function(wm_game_screen target)
  cmake_parse_arguments(G "" "" "SOURCES;LIBS" ${ARGN})
  add_library(${target} STATIC ${G_SOURCES})
  target_link_libraries(${target} PUBLIC wm_shell ${G_LIBS})
  target_precompile_headers(${target} REUSE_FROM wm_shell)
  set_property(GLOBAL APPEND PROPERTY WM_GAME_LIBS ${target})
  # Its pictures, sounds and animations are made from assets/ by the asset generator.
  if(TARGET wm_assets)
    add_dependencies(${target} wm_assets)
  endif()
endfunction()

# Links game screen libraries whole into a test, so their registrations are kept.
function(wm_link_games target)
  foreach(lib ${ARGN})
    target_link_libraries(${target} PRIVATE "$<LINK_LIBRARY:WHOLE_ARCHIVE,${lib}>")
  endforeach()
endfunction()
