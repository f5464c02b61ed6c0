add_library(wm_shell STATIC
  screens.cpp style.cpp shell_registry.cpp black_back.cpp title.cpp choose_list.cpp
  lang_choose.cpp game_options.cpp game_frame.cpp enter_initials_form.cpp high_score_form.cpp
  about_form.cpp fl_form.cpp game_registry.cpp splash_scene.cpp quiz_options.cpp flash_card_options.cpp)
target_link_libraries(wm_shell PUBLIC wm_catalogue wm_platform Qt6::Widgets)
wm_qt_pch(wm_shell)
