add_library(pursewell_state_fixture STATIC support/StateFixture.cpp support/StateFixture.h)
target_link_libraries(pursewell_state_fixture PUBLIC pursewell_state pursewell_test_support)
target_precompile_headers(pursewell_state_fixture REUSE_FROM pursewell_test_support)

pursewell_test(AppStateTest LABEL widget USES pursewell_state)
pursewell_test(AccessibilityTest LABEL widget
  USES pursewell_shell SOURCES Contrast.cpp EveryWindow.cpp ShellFixture.cpp SignedInSupport.cpp)
pursewell_test(ContrastTest LABEL widget USES pursewell_theme SOURCES Contrast.cpp)
pursewell_test(AppStateSyncTest LABEL widget USES pursewell_state SOURCES SignedInSupport.cpp)
pursewell_test(SettingsScreenTest LABEL widget
  USES pursewell_shell pursewell_state_fixture SOURCES SignedInSupport.cpp)
pursewell_test(SmallWidgetsTest LABEL widget USES pursewell_shell)
pursewell_test(MainWindowTest LABEL widget USES pursewell_shell SOURCES ShellFixture.cpp)
pursewell_test(MainWindowAccountsTest LABEL widget
  USES pursewell_shell pursewell_test_database SOURCES ShellFixture.cpp)
pursewell_test(MainWindowImportTest LABEL widget USES pursewell_shell SOURCES ShellFixture.cpp)
pursewell_test(MainWindowReconcileTest LABEL widget USES pursewell_shell SOURCES ShellFixture.cpp)
pursewell_test(MainWindowRecurringTest LABEL widget USES pursewell_shell SOURCES ShellFixture.cpp)
pursewell_test(MainWindowSignInTest LABEL widget
  USES pursewell_shell SOURCES ShellFixture.cpp SignedInSupport.cpp)
pursewell_test(ApplicationTest LABEL widget USES pursewell_application)
target_compile_definitions(ApplicationTest PRIVATE PURSEWELL_PROGRAM="$<TARGET_FILE:pursewell>")
add_dependencies(ApplicationTest pursewell)
