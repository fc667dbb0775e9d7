# The texts themselves, in each language, and whether the windows have room for them.
set(i18n_folder ${PROJECT_SOURCE_DIR}/resources/i18n)

pursewell_test(TranslationsTest LABEL unit USES pursewell_core)
target_compile_definitions(TranslationsTest PRIVATE
  PURSEWELL_LUPDATE="$<TARGET_FILE:Qt6::lupdate>"
  PURSEWELL_SOURCE="${PROJECT_SOURCE_DIR}/src"
  PURSEWELL_CATALOGUES="${i18n_folder}")

pursewell_test(AccessKeysTest LABEL widget
  USES pursewell_shell
  SOURCES AccessKeys.cpp LanguageChange.cpp ../shell/ShellFixture.cpp)
pursewell_test(TextFitTest LABEL widget
  USES pursewell_shell
  SOURCES AccessKeys.cpp CutTexts.cpp LanguageChange.cpp
          ../shell/EveryWindow.cpp ../shell/ShellFixture.cpp ../shell/SignedInSupport.cpp)
