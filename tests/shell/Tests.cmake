pursewell_test(AppStateTest LABEL widget USES pursewell_state)
pursewell_test(SmallWidgetsTest LABEL widget USES pursewell_shell)
pursewell_test(MainWindowTest LABEL widget USES pursewell_shell SOURCES ShellFixture.cpp)
pursewell_test(MainWindowAccountsTest LABEL widget
  USES pursewell_shell pursewell_test_database SOURCES ShellFixture.cpp)
pursewell_test(ApplicationTest LABEL widget USES pursewell_application)
target_compile_definitions(ApplicationTest PRIVATE PURSEWELL_PROGRAM="$<TARGET_FILE:pursewell>")
add_dependencies(ApplicationTest pursewell)
